// The properties of a panel of cells, its grid and what it shows. The input is in
// cell_panel_input.cpp, copying, pasting and undoing in cell_panel_block.cpp.

#include "qorvex/controls/cell_panel.h"

#include <QEvent>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <limits>
#include <utility>

#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();
constexpr int kMostEdits = 255;

}  // namespace

CellPanel::CellPanel(QWidget* parent, GridAxes axes, detail::CurrentRule rule,
                     CellFactory make_cell)
    : TQorCustomPanel(parent), make_cell_(std::move(make_cell)), rule_(rule) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  MakeBar(rows_, Qt::Vertical);
  if (axes == GridAxes::kRowsAndCols) MakeBar(cols_, Qt::Horizontal);

  detail::EditWindowEvents events;
  events.before_top = [this](quint32 top) {
    rows_.wanted_top = 0;
    CommitPending();
    Q_EMIT ontopChange(top);
  };
  events.place_bar = [this] { PlaceBar(rows_); };
  events.current_changed = [this](quint32 before, quint32 now) {
    Q_EMIT OnCurrRowChange(before, now);
  };
  events.redisplay = [this] { Redisplay(); };
  events.after_top = [this](quint32 top) { AfterTopChange(top); };
  rows_.window = std::make_unique<detail::EditWindow>(rule, std::move(events));

  events = {};
  events.before_top = [this](quint32 left) {
    cols_.wanted_top = 0;
    CommitPending();
    LeftChange(left);
  };
  events.place_bar = [this] { PlaceBar(cols_); };
  events.current_changed = [this](quint32 before, quint32 now) { CurrColChange(before, now); };
  events.redisplay = [this] { Redisplay(); };
  cols_.window = std::make_unique<detail::EditWindow>(rule, std::move(events));
}

void CellPanel::MakeBar(Axis& axis, Qt::Orientation orientation) {
  axis.bar = new QScrollBar(orientation, this);
  // A click on the bar must take the focus out of a cell, or its text would end up in another row.
  axis.bar->setFocusPolicy(Qt::ClickFocus);
  axis.bar->installEventFilter(this);
  connect(axis.bar, &QScrollBar::actionTriggered, this,
          [this, &axis](int action) { SBScroll(axis, action); });
  connect(axis.bar, &QScrollBar::valueChanged, this, [this, &axis] { FollowBar(axis); });
}

CellPanel::~CellPanel() {
  // Left to the base class, the cells would signal into a panel that is no more.
  for (const auto& row : cells_) {
    for (TQorCustomEdit* cell : row) {
      cell->removeEventFilter(this);
      cell->disconnect(this);
      delete cell;
    }
  }
}

QString CellPanel::UICtrlName() const {
  return ui_ctrl_ ? ui_ctrl_->objectName() : ui_ctrl_name_;
}

void CellPanel::setUICtrl(TQorUICtrl* settings) {
  if (ui_ctrl_) ui_ctrl_->disconnect(this);
  ui_ctrl_ = settings;
  ui_ctrl_name_.clear();
  if (ui_ctrl_) {
    connect(ui_ctrl_, &TQorUICtrl::Changed, this, &CellPanel::ApplySettings);
    connect(ui_ctrl_, &QObject::destroyed, this, &CellPanel::ApplySettings);
  }
  ApplySettings();
}

void CellPanel::setUICtrl(const QString& name) {
  setUICtrl(nullptr);
  ui_ctrl_name_ = name;
  FindUICtrl();
}

void CellPanel::FindUICtrl() {
  if (ui_ctrl_name_.isEmpty()) return;
  if (auto* settings = window()->findChild<TQorUICtrl*>(ui_ctrl_name_)) setUICtrl(settings);
}

void CellPanel::setUIUsage(TQorUICtrl::TQorUIUsage usage) {
  if (usage == ui_usage_) return;
  ui_usage_ = usage;
  ApplySettings();
}

CellSettings CellPanel::EffectiveSettings() const {
  return ui_ctrl_ ? ui_ctrl_->Merged(Settings(), ui_usage_) : Settings();
}

void CellPanel::ApplySettings() {
  const CellSettings settings = EffectiveSettings();
  for (const auto& row : cells_) {
    for (TQorCustomEdit* cell : row) ApplyTo(*cell, settings);
  }
  CellSettingsApplied();
}

void CellPanel::ApplyTo(TQorCustomEdit& cell, const CellSettings& settings) const {
  cell.setSettings(settings);
  cell.setFocusPolicy(tab_stop_ ? Qt::StrongFocus : Qt::ClickFocus);
}

void CellPanel::SettingsChanged() {
  ApplySettings();
}

void CellPanel::DoColorSetChange() {
  ApplySettings();
  Q_EMIT OnColorSetChange();
}

void CellPanel::Loaded() {
  FindUICtrl();
  rows_.wanted_top = 0;
  cols_.wanted_top = 0;
}

void CellPanel::setCellHeight(int height) {
  cell_height_ = std::max(height, 0);
  Arrange();
}

void CellPanel::setCellWidth(int width) {
  cell_width_ = std::max(width, 0);
  Arrange();
}

quint32 CellPanel::DisplayTopRow() const noexcept {
  return Rows().Top();
}

void CellPanel::setDisplayTopRow(quint32 row) {
  SetTop(rows_, row);
}

void CellPanel::SetLeft(quint32 left) {
  SetTop(cols_, left);
}

void CellPanel::SetTop(Axis& axis, quint32 top) {
  axis.window->SetTop(top);
  axis.wanted_top = IsLoaded() ? 0 : top;
}

void CellPanel::SetCurrentCol(quint32 col) {
  cols_.window->SetCurrent(col);
}

quint32 CellPanel::CurrentRow() const noexcept {
  return Rows().Current();
}

void CellPanel::setCurrentRow(quint32 row) {
  rows_.window->SetCurrent(row);
}

void CellPanel::ScrollUp(quint32 rows) {
  rows_.window->ScrollUp(rows);
}

void CellPanel::ScrollDown(quint32 rows) {
  rows_.window->ScrollDown(rows);
}

void CellPanel::ScrollTop() {
  rows_.window->SetTop(0);
}

void CellPanel::ScrollBottom() {
  rows_.window->SetTop(Rows().Count());
}

void CellPanel::SBScroll(const Axis& axis, int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
    case QAbstractSlider::SliderSingleStepSub:
      axis.window->StepFromBar(action == QAbstractSlider::SliderSingleStepAdd);
      break;
    default:
      axis.window->SetTopFromBar(axis.bar->sliderPosition());
  }
  // Qt moves the bar to its slider next.
  axis.bar->setSliderPosition(axis.window->BarPosition());
}

void CellPanel::FollowBar(const Axis& axis) {
  // The bar's menu and assistive programs set its value without an action.
  const int position = axis.bar->value();
  if (!placing_bar_ && position != axis.window->BarPosition()) {
    axis.window->SetTopFromBar(position);
  }
}

void CellPanel::setNull(bool null) {
  null_ = null;
  if (!null) {
    Redisplay();
    return;
  }
  CommitPending();
  for (const auto& row : cells_) {
    for (TQorCustomEdit* cell : row) {
      if (cell->isEnabled()) cell->Refresh(kNull);
    }
  }
}

void CellPanel::setTabStop(bool stop) {
  tab_stop_ = stop;
  ApplySettings();
}

void CellPanel::setVirtualMode(bool on) {
  if (on == virtual_mode_) return;
  CommitPending();
  Forget();
  virtual_mode_ = on;
  VirtualModeChanged();
  Redisplay();
}

void CellPanel::AfterTopChange(quint32) {}
void CellPanel::LeftChange(quint32) {}
void CellPanel::CurrColChange(quint32, quint32) {}
void CellPanel::GridBuilt() {}
void CellPanel::Redisplayed() {}
void CellPanel::CellSettingsApplied() {}

QColor CellPanel::SpecialColor(quint32, quint32, Extended) const {
  return {};
}

int CellPanel::LeadingWidth() const {
  return 0;
}

TextCell* CellPanel::NavigationTarget(std::size_t row_edit, std::size_t col_edit) const {
  return Cell(row_edit, col_edit);
}

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

}  // namespace qorvex::inline QorvexControls
