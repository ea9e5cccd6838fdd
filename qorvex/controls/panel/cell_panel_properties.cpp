// The published properties of a panel of cells, its scrolling and its layout.

#include <QStyle>
#include <algorithm>
#include <limits>

#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

const detail::EditWindow& CellPanel::Rows() const noexcept {
  return parts_->rows.Window();
}

const detail::EditWindow& CellPanel::Cols() const noexcept {
  return parts_->cols.Window();
}

TQorUICtrl* CellPanel::UICtrl() const noexcept {
  return parts_->settings.Linked();
}

QString CellPanel::UICtrlName() const {
  return parts_->settings.Name();
}

void CellPanel::setUICtrl(TQorUICtrl* settings) {
  parts_->settings.Link(settings);
}

void CellPanel::setUICtrl(const QString& name) {
  parts_->settings.Link(name);
  // A page is added to its form, and polished, before the form is complete.
  QMetaObject::invokeMethod(
      this, [this] { parts_->settings.Find(); }, Qt::QueuedConnection);
}

TQorUICtrl::TQorUIUsage CellPanel::UIUsage() const noexcept {
  return parts_->settings.Usage();
}

void CellPanel::setUIUsage(TQorUICtrl::TQorUIUsage usage) {
  parts_->settings.SetUsage(usage);
}

void CellPanel::resetUIUsage() {
  setUIUsage(detail::SharedSettings::kUseAll);
}

CellSettings CellPanel::EffectiveSettings() const {
  return parts_->settings.Merged(Settings());
}

int CellPanel::CellHeight() const noexcept {
  return parts_->grid.CellHeight();
}

void CellPanel::setCellHeight(int height) {
  parts_->grid.SetCellHeight(std::max(height, 0));
  Arrange();
}

void CellPanel::resetCellHeight() {
  setCellHeight(detail::CellGrid::kDefaultCellHeight);
}

int CellPanel::CellWidth() const noexcept {
  return parts_->grid.CellWidth();
}

void CellPanel::setCellWidth(int width) {
  parts_->grid.SetCellWidth(std::max(width, 0));
  Arrange();
}

void CellPanel::resetCellWidth() {
  setCellWidth(detail::CellGrid::kDefaultCellWidth);
}

quint32 CellPanel::DisplayTopRow() const noexcept {
  return Rows().Top();
}

void CellPanel::setDisplayTopRow(quint32 row) {
  parts_->rows.SetTop(row);
}

void CellPanel::setNull(bool null) {
  null_ = null;
  if (!null) {
    Redisplay();
    return;
  }
  parts_->grid.ForEach([](TQorCustomEdit& cell) {
    if (cell.isEnabled()) cell.Refresh(std::numeric_limits<Extended>::quiet_NaN());
  });
}

void CellPanel::setTabStop(bool stop) {
  tab_stop_ = stop;
  ApplySettings();
}

void CellPanel::setVirtualMode(bool on) {
  if (on == virtual_mode_) return;
  if (Model() != nullptr) {
    // It has no effect before the model is gone.
    virtual_mode_ = on;
    return;
  }
  parts_->focus.CommitPending();
  parts_->history.Forget();
  virtual_mode_ = on;
  table_.VirtualModeChanged();
  Redisplay();
}

quint32 CellPanel::CurrentRow() const noexcept {
  return Rows().Current();
}

void CellPanel::setCurrentRow(quint32 row) {
  parts_->rows.Window().SetCurrent(row);
}

void CellPanel::ScrollUp(quint32 rows) {
  parts_->rows.Window().ScrollUp(rows);
}

void CellPanel::ScrollDown(quint32 rows) {
  parts_->rows.Window().ScrollDown(rows);
}

void CellPanel::ScrollTop() {
  parts_->rows.Window().SetTop(0);
}

void CellPanel::ScrollBottom() {
  parts_->rows.Window().SetTop(Rows().Count());
}

bool CellPanel::CanUndo() const noexcept {
  return parts_->history.CanUndo();
}

bool CellPanel::CanRedo() const noexcept {
  return parts_->history.CanRedo();
}

void CellPanel::SetCorner(QWidget* corner) {
  parts_->corner = corner;
}

void CellPanel::Arrange() {
  parts_->grid.Arrange();
  const QSize cells = parts_->grid.Size();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  parts_->rows.Bar()->setGeometry(parts_->grid.Placed({cells.width(), 0, bar, cells.height()}));
  if (QWidget* const below = parts_->cols.Bar()) {
    below->setGeometry(parts_->grid.Placed({0, cells.height(), cells.width(), bar}));
  }
  if (parts_->corner) {
    parts_->corner->setGeometry(parts_->grid.Placed({cells.width(), cells.height(), bar, bar}));
  }
  updateGeometry();
}

QSize CellPanel::sizeHint() const {
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const QSize bars(bar, parts_->cols.Bar() ? bar : 0);
  return parts_->grid.Size() + bars + QSize(2 * frameWidth(), 2 * frameWidth());
}

}  // namespace qorvex::inline QorvexControls
