#include "qorvex/controls/panel/detail/cell_grid.h"

#include <QLocale>
#include <algorithm>
#include <memory>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

namespace {

void PlaceInTabOrder(QWidget* previous, QWidget* widget) {
  if (previous->nextInFocusChain() != widget) QWidget::setTabOrder(previous, widget);
}

}  // namespace

CellGrid::CellGrid(QWidget& panel, const CellTable& table, const EditWindow& rows,
                   const EditWindow& cols, const GridGeometry& geometry, Owner owner)
    : panel_(panel),
      table_(table),
      rows_(rows),
      cols_(cols),
      geometry_(geometry),
      owner_(std::move(owner)) {
  QAccessible::installActivationObserver(this);
}

CellGrid::~CellGrid() {
  QAccessible::removeActivationObserver(this);
  // Left to the base class of the panel, they would signal into a panel that is half destroyed.
  const auto remove = [this](TextCell* text) {
    text->disconnect(&panel_);
    delete text;
  };
  for (TextCell* text : header_texts_) remove(text);
  for (const auto& row : cells_) {
    for (TQorCustomEdit* cell : row) remove(cell);
  }
}

void CellGrid::SetCellFactory(std::function<TQorCustomEdit*(QWidget* panel)> make) {
  make_cell_ = std::move(make);
}

void CellGrid::SetTexts(QorvexBaseControls::detail::TextElements* texts) {
  texts_ = texts;
  ForEach([texts](TQorCustomEdit& cell) { cell.SetTexts(texts); });
}

void CellGrid::SetHeader(RowHeader header) {
  header_ = std::move(header);
}

void CellGrid::ForEach(const std::function<void(TQorCustomEdit& cell)>& function) const {
  for (const auto& row : cells_) {
    for (TQorCustomEdit* cell : row) function(*cell);
  }
}

CellGrid::Spot CellGrid::SpotOf(const TextCell& text) const {
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    const auto row = static_cast<quint32>(r);
    if (r < header_texts_.size() && header_texts_[r] == &text) return {{row, 0}, false};
    const auto found = std::ranges::find(cells_[r], &text);
    if (found == cells_[r].end()) continue;
    return {{row, static_cast<quint32>(found - cells_[r].begin())}, true};
  }
  return {};
}

CellGrid::Nearest CellGrid::NearestTo(QPoint point) const {
  Nearest nearest;
  if (!IsUsed(0, 0)) return nearest;
  const bool mirrored = panel_.layoutDirection() == Qt::RightToLeft;
  const auto below = [&](std::size_t row) { return point.y() > Cell(row, 0)->geometry().bottom(); };
  const auto behind = [&](std::size_t col) {
    const QRect cell = Cell(0, col)->geometry();
    return mirrored ? point.x() < cell.left() : point.x() > cell.right();
  };
  while (below(nearest.place.row) && IsUsed(nearest.place.row + 1, 0)) ++nearest.place.row;
  while (behind(nearest.place.col) && IsUsed(0, nearest.place.col + 1)) ++nearest.place.col;
  const QRect first = Cell(0, 0)->geometry();
  const bool before = mirrored ? point.x() > first.right() : point.x() < first.left();
  nearest.rows_beyond = point.y() < first.top() ? -1 : below(nearest.place.row) ? 1 : 0;
  nearest.cols_beyond = before ? -1 : behind(nearest.place.col) ? 1 : 0;
  return nearest;
}

void CellGrid::Fit(const CellSettings& settings, Qt::FocusPolicy focus, QWidget* before) {
  settings_ = settings;
  const std::size_t rows = rows_.Edits();
  const std::size_t cols = cols_.Edits();
  while (cells_.size() > rows) {
    const std::vector<TQorCustomEdit*> dropped = std::move(cells_.back());
    cells_.pop_back();
    for (TQorCustomEdit* cell : dropped) DropCell(cell);
  }
  cells_.resize(rows);
  QWidget* previous = before;
  for (std::size_t r = 0; r < rows; ++r) {
    while (cells_[r].size() > cols) {
      TQorCustomEdit* const dropped = cells_[r].back();
      cells_[r].pop_back();
      DropCell(dropped);
    }
    if (!cells_[r].empty()) previous = cells_[r].back();
    while (cells_[r].size() < cols) {
      const CellPlace place{static_cast<quint32>(r), static_cast<quint32>(cells_[r].size())};
      TQorCustomEdit* const cell = MakeCell(place, settings, focus);
      cells_[r].push_back(cell);
      PlaceInTabOrder(previous, cell);
      previous = cell;
      cell->show();
    }
  }
  FitHeader(before);
  ApplyToHeader(settings);
}

TQorCustomEdit* CellGrid::MakeCell(CellPlace place, const CellSettings& settings,
                                   Qt::FocusPolicy focus) {
  TQorCustomEdit* const cell = make_cell_(&panel_);
  cell->setSettings(settings);
  cell->SetTexts(texts_);
  cell->setFocusPolicy(focus);
  owner_.connect(*cell, place);
  return cell;
}

void CellGrid::FitHeader(QWidget* before) {
  if (!header_.make) return;
  while (header_texts_.size() > cells_.size()) {
    TextCell* const text = header_texts_.back();
    header_texts_.pop_back();
    Drop(text);
  }
  while (header_texts_.size() < cells_.size()) {
    const std::size_t row = header_texts_.size();
    TextCell* const text = header_.make(&panel_, static_cast<quint32>(row));
    header_texts_.push_back(text);
    QWidget::setTabOrder(row > 0 ? Cell(row - 1, 0) : before, text);
    QWidget::setTabOrder(text, Cell(row, 0));
    text->show();
  }
}

void CellGrid::DropCell(TQorCustomEdit* cell) {
  cell->StoreElsewhere = nullptr;
  Drop(cell);
}

void CellGrid::Drop(TextCell* text) {
  // It may be the one whose event is being handled, so it is deleted later.
  text->disconnect(&panel_);
  owner_.drop(*text);
  text->hide();
  text->deleteLater();
}

void CellGrid::Apply(const CellSettings& settings, Qt::FocusPolicy focus) {
  ForEach([&](TQorCustomEdit& cell) { cell.setFocusPolicy(focus); });
  ApplyToCells(settings);
  ApplyToHeader(settings);
}

void CellGrid::ApplyToCells(const CellSettings& settings) {
  settings_ = settings;
  for (std::size_t c = 0; c < cols_.Edits(); ++c) {
    CellSettings of_column = SettingsOf(cols_.Top() + static_cast<quint32>(c));
    // A text that is committed on the way may change how many cells there are.
    for (std::size_t r = 0; r < cells_.size() && c < cells_[r].size(); ++r) {
      of_column.read_only = IsReadOnly(r, c);
      cells_[r][c]->setSettings(of_column);
    }
  }
}

bool CellGrid::IsReadOnly(std::size_t row, std::size_t col) const {
  return settings_.read_only ||
         (HasElement(row, col) && table_.IsReadOnly(rows_.Top() + static_cast<quint32>(row),
                                                    cols_.Top() + static_cast<quint32>(col)));
}

bool CellGrid::HasElement(std::size_t row, std::size_t col) const {
  return IsUsed(row, col) && rows_.Top() + row < table_.RowCount() &&
         cols_.Top() + col < table_.ColCount();
}

CellSettings CellGrid::SettingsOf(quint32 col) const {
  CellSettings settings = settings_;
  const auto format = col_formats_.find(col);
  if (format != col_formats_.end()) settings.number = format->second;
  return settings;
}

QString CellGrid::TextFor(quint32 col, Extended value) const {
  if (col_formats_.empty()) return Cell(0, 0)->TextFor(value);
  // The column may be out of sight.
  const std::unique_ptr<TQorCustomEdit> cell(make_cell_(nullptr));
  cell->setLocale(panel_.locale());
  cell->setSettings(SettingsOf(col));
  cell->SetTexts(texts_);
  return cell->TextFor(value);
}

void CellGrid::ApplyToHeader(const CellSettings& settings) {
  for (TextCell* text : header_texts_) header_.apply(*text, settings);
}

void CellGrid::EnableUsedCells() {
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    for (std::size_t c = 0; c < cells_[r].size(); ++c) cells_[r][c]->setEnabled(IsUsed(r, c));
  }
}

void CellGrid::Show() {
  // Scrolling brings other columns into the cells.
  if (!col_formats_.empty()) ApplyToCells(settings_);
  // Asking for an element may change how many there are, and how many cells.
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    for (std::size_t c = 0; r < cells_.size() && c < cells_[r].size(); ++c) {
      TQorCustomEdit* const cell = cells_[r][c];
      const quint32 row = rows_.Top() + static_cast<quint32>(r);
      const quint32 col = cols_.Top() + static_cast<quint32>(c);
      if (HasElement(r, c)) {
        const Extended value = table_.Value(row, col);
        cell->setReadOnly(IsReadOnly(r, c));
        cell->Refresh(value);
        cell->SetSpecialColor(table_.SpecialColor(row, col, value));
      } else {
        // What is being typed into the spare line stays.
        cell->ShowNothing(IsUsed(r, c));
        cell->setReadOnly(settings_.read_only);
        cell->SetSpecialColor({});
      }
    }
  }
  for (std::size_t r = 0; r < header_texts_.size(); ++r) {
    header_.show(*header_texts_[r], static_cast<quint32>(r), r < rows_.UsedEdits());
  }
  if (is_named_) NameCells();
}

void CellGrid::MarkSelected(const TQorCellRange& range) {
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    const quint32 row = rows_.Top() + static_cast<quint32>(r);
    for (std::size_t c = 0; c < cells_[r].size(); ++c) {
      const quint32 col = cols_.Top() + static_cast<quint32>(c);
      cells_[r][c]->SetSelected(IsUsed(r, c) && range.Contains(row, col));
    }
  }
}

void CellGrid::accessibilityActiveChanged(bool active) {
  is_named_ = active;
  if (active) NameCells();
}

void CellGrid::NameCells() {
  const auto name = [](TextCell& text, const QString& its_name) {
    if (text.accessibleName() != its_name) text.setAccessibleName(its_name);
  };
  // Asking for a name may change how many cells there are.
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    const quint32 row = rows_.Top() + static_cast<quint32>(r);
    for (std::size_t c = 0; r < cells_.size() && c < cells_[r].size(); ++c) {
      TQorCustomEdit* const cell = cells_[r][c];
      name(*cell, table_.CellName(row, cols_.Top() + static_cast<quint32>(c)));
    }
  }
  for (std::size_t r = 0; r < header_texts_.size(); ++r) {
    name(*header_texts_[r], header_.name(static_cast<quint32>(r)));
  }
}

int CellGrid::FittingWidth(std::size_t col) const {
  int width = 0;
  for (const auto& row : cells_) {
    if (col < row.size()) width = std::max(width, row[col]->FittingWidth());
  }
  return width;
}

void CellGrid::Arrange() const {
  std::vector<QRect> above;
  for (quint32 col = 0; col < cols_.Edits(); ++col) above.push_back(geometry_.Above(col));
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    const QRect in_front = geometry_.InFrontOf(static_cast<quint32>(r));
    // The window may already have fewer columns than there are cells.
    for (std::size_t c = 0; c < std::min(cells_[r].size(), above.size()); ++c) {
      cells_[r][c]->setGeometry(
          geometry_.Placed({above[c].x(), in_front.y(), above[c].width(), in_front.height()}));
    }
    if (r < header_texts_.size()) header_texts_[r]->setGeometry(geometry_.Placed(in_front));
  }
}

}  // namespace qorvex::inline QorvexControls::detail
