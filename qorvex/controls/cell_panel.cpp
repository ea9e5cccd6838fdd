// The properties of a panel of cells and its scrolling. Its grid is in cell_panel_grid.cpp, the
// input in cell_panel_input.cpp, copying, pasting and undoing in cell_panel_block.cpp.

#include "qorvex/controls/cell_panel.h"

#include <QScrollBar>
#include <algorithm>
#include <limits>
#include <utility>

#include "qorvex/base_controls/detail/find_by_name.h"
#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

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
  ui_ctrl_name_.clear();
  LinkTo(settings);
}

void CellPanel::LinkTo(TQorUICtrl* settings) {
  if (ui_ctrl_) ui_ctrl_->disconnect(this);
  ui_ctrl_ = settings;
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
  // A page comes into its form, and is polished, before the form is complete.
  QMetaObject::invokeMethod(this, &CellPanel::FindUICtrl, Qt::QueuedConnection);
}

void CellPanel::FindUICtrl() {
  if (ui_ctrl_name_.isEmpty()) return;
  auto* const settings = QorvexBaseControls::detail::FindByName<TQorUICtrl>(*this, ui_ctrl_name_);
  if (settings != nullptr && settings != ui_ctrl_) LinkTo(settings);
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

}  // namespace qorvex::inline QorvexControls
