// The cells of a panel: how many there are, what they show, and where they are.

#include <QEvent>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "qorvex/controls/cell_panel.h"
#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr int kMostEdits = 255;

}  // namespace

void CellPanel::SetRowEdits(int edits) {
  SetEdits(rows_, edits);
}

void CellPanel::SetColEdits(int edits) {
  SetEdits(cols_, edits);
}

void CellPanel::SetRowCount(quint32 count) {
  SetCount(rows_, count);
}

void CellPanel::SetColCount(quint32 count) {
  SetCount(cols_, count);
}

bool CellPanel::FocusIsBeyond(const Axis& axis, quint32 edit) const {
  return entered_ != nullptr && axis.window->Focus() >= edit;
}

void CellPanel::SetEdits(Axis& axis, int edits) {
  const auto wanted = static_cast<quint32>(std::clamp(edits, 0, kMostEdits));
  if (wanted == axis.window->Edits()) return;
  CommitPending();
  const bool moves = FocusIsBeyond(axis, wanted);
  if (moves) Park(axis);
  axis.window->SetEdits(wanted);
  if (moves) Navigate(Rows().Focus(), Cols().Focus());
  FitGrid();
  if (axis.wanted_top > axis.window->Top()) SetTop(axis, axis.wanted_top);
}

void CellPanel::SetCount(Axis& axis, quint32 count) {
  CommitPending();
  const quint32 top = axis.window->Top();
  const bool moves = FocusIsBeyond(axis, count > top ? count - top : 0);
  if (moves) Park(axis);
  axis.window->SetCount(count);
  if (moves) Navigate(Rows().Focus(), Cols().Focus());
  if (axis.wanted_top > axis.window->Top()) SetTop(axis, axis.wanted_top);
}

void CellPanel::FitGrid() {
  const std::size_t rows = Rows().Edits();
  const std::size_t cols = Cols().Edits();
  while (cells_.size() > rows) {
    const std::vector<TQorCustomEdit*> dropped = std::move(cells_.back());
    cells_.pop_back();
    for (TQorCustomEdit* cell : dropped) DropCell(cell);
  }
  cells_.resize(rows);
  QWidget* previous = nullptr;
  for (std::size_t r = 0; r < rows; ++r) {
    while (cells_[r].size() > cols) {
      TQorCustomEdit* const dropped = cells_[r].back();
      cells_[r].pop_back();
      DropCell(dropped);
    }
    if (!cells_[r].empty()) previous = cells_[r].back();
    while (cells_[r].size() < cols) {
      TQorCustomEdit* const cell = MakeCell(r, cells_[r].size());
      cells_[r].push_back(cell);
      if (previous != nullptr) setTabOrder(previous, cell);
      previous = cell;
      cell->show();
    }
  }
  GridBuilt();
  Arrange();
  Redisplay();
}

TQorCustomEdit* CellPanel::MakeCell(std::size_t row_edit, std::size_t col_edit) {
  TQorCustomEdit* const cell = make_cell_(this);
  cell->Tag = static_cast<int>(row_edit * (kMostEdits + 1) + col_edit);
  ApplyTo(*cell, EffectiveSettings());
  connect(cell, &TQorCustomEdit::Entered, this, [this, cell] { EditEnter(cell); });
  connect(cell, &TQorCustomEdit::Left, this, [this, cell] { EditExit(cell); });
  connect(cell, &TQorCustomEdit::Changed, this, [this, cell] { DoChange(cell); });
  connect(cell, &TQorCustomEdit::textEdited, this,
          [this, cell](const QString& text) { NotifyText(RowOf(cell), ColOf(cell), text); });
  connect(cell, &TQorCustomEdit::Refused, this,
          [this, cell](const QString& text) { RefuseText(RowOf(cell), ColOf(cell), text); });
  connect(cell, &TQorCustomEdit::BlockPasted, this, &CellPanel::PasteBlock);
  connect(cell, &TQorCustomEdit::MenuOpening, this, &CellPanel::AddToMenu);
  Watch(cell);
  return cell;
}

void CellPanel::DropCell(TQorCustomEdit* cell) {
  // It may be the one whose event is being handled, so it goes later.
  cell->removeEventFilter(this);
  cell->disconnect(this);
  if (entered_ == cell) entered_ = nullptr;
  cell->hide();
  cell->deleteLater();
}

quint32 CellPanel::RowOf(const TQorCustomEdit* cell) const {
  return Rows().Top() + static_cast<quint32>(cell->Tag / (kMostEdits + 1));
}

quint32 CellPanel::ColOf(const TQorCustomEdit* cell) const {
  return Cols().Top() + static_cast<quint32>(cell->Tag % (kMostEdits + 1));
}

void CellPanel::PlaceBar(const Axis& axis) {
  if (axis.bar == nullptr) return;
  placing_bar_ = true;
  axis.bar->setRange(0, axis.window->BarMaximum());
  axis.bar->setPageStep(axis.window->BarPageStep());
  axis.bar->setValue(axis.window->BarPosition());
  placing_bar_ = false;
}

void CellPanel::EnableUsedCells() {
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    for (std::size_t c = 0; c < cells_[r].size(); ++c) {
      cells_[r][c]->setEnabled(r < Rows().UsedEdits() && c < Cols().UsedEdits());
    }
  }
}

void CellPanel::Redisplay() {
  // At once, since a cell may be given the focus before the update ends.
  EnableUsedCells();
  if (Updating()) return;
  // Asking for an element may change how many there are, and how many cells.
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    for (std::size_t c = 0; r < cells_.size() && c < cells_[r].size(); ++c) {
      TQorCustomEdit* const cell = cells_[r][c];
      const quint32 row = RowOf(cell);
      const quint32 col = ColOf(cell);
      if (r < Rows().UsedEdits() && c < Cols().UsedEdits()) {
        const Extended value = Value(row, col);
        cell->Refresh(value);
        cell->SetSpecialColor(SpecialColor(row, col, value));
      } else {
        cell->ShowNothing();
      }
      const QString name = CellName(row, col);
      if (cell->accessibleName() != name) cell->setAccessibleName(name);
    }
  }
  Redisplayed();
}

int CellPanel::RowHeight() const {
  constexpr int frame = 4;
  return std::max(cell_height_, fontMetrics().height() + frame);
}

int CellPanel::BarExtent() const {
  return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

QRect CellPanel::Placed(const QRect& rectangle) const {
  const QRect contents = contentsRect();
  return QStyle::visualRect(layoutDirection(), contents, rectangle.translated(contents.topLeft()));
}

QRect CellPanel::CellRect(std::size_t row_edit, std::size_t col_edit) const {
  const int height = RowHeight();
  return Placed({LeadingWidth() + static_cast<int>(col_edit) * cell_width_,
                 static_cast<int>(row_edit) * height, cell_width_, height});
}

void CellPanel::Arrange() {
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    for (std::size_t c = 0; c < cells_[r].size(); ++c) cells_[r][c]->setGeometry(CellRect(r, c));
  }
  const int cells_width = LeadingWidth() + static_cast<int>(Cols().Edits()) * cell_width_;
  const int cells_height = static_cast<int>(Rows().Edits()) * RowHeight();
  rows_.bar->setGeometry(Placed({cells_width, 0, BarExtent(), cells_height}));
  if (cols_.bar) cols_.bar->setGeometry(Placed({0, cells_height, cells_width, BarExtent()}));
  updateGeometry();
}

QRect CellPanel::CornerRect() const {
  return Placed({LeadingWidth() + static_cast<int>(Cols().Edits()) * cell_width_,
                 static_cast<int>(Rows().Edits()) * RowHeight(), BarExtent(), BarExtent()});
}

QSize CellPanel::sizeHint() const {
  const int width = LeadingWidth() + static_cast<int>(Cols().Edits()) * cell_width_ + BarExtent();
  const int height = static_cast<int>(Rows().Edits()) * RowHeight() + (cols_.bar ? BarExtent() : 0);
  return QSize(width, height) + QSize(2 * frameWidth(), 2 * frameWidth());
}

QSize CellPanel::minimumSizeHint() const {
  return sizeHint();
}

void CellPanel::changeEvent(QEvent* event) {
  TQorCustomPanel::changeEvent(event);
  switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
      Arrange();
      break;
    case QEvent::LanguageChange:
      Redisplay();
      break;
    default:
      break;
  }
}

void CellPanel::resizeEvent(QResizeEvent* event) {
  TQorCustomPanel::resizeEvent(event);
  Arrange();
}

void CellPanel::showEvent(QShowEvent* event) {
  TQorCustomPanel::showEvent(event);
  FindUICtrl();
}

}  // namespace qorvex::inline QorvexControls
