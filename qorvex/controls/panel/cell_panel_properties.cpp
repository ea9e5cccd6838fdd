// The published properties of a panel of cells, and its scrolling.

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
  FitSpareLines();
  Redisplay();
}

quint32 CellPanel::CurrentRow() const noexcept {
  return Rows().Current();
}

void CellPanel::setCurrentRow(quint32 row) {
  parts_->rows.Window().SetCurrent(row);
}

void CellPanel::ScrollUp(quint32 rows) {
  parts_->rows.ScrollUp(rows);
}

void CellPanel::ScrollDown(quint32 rows) {
  parts_->rows.ScrollDown(rows);
}

void CellPanel::ScrollTop() {
  parts_->rows.ScrollToStart();
}

void CellPanel::ScrollBottom() {
  parts_->rows.ScrollToEnd();
}

}  // namespace qorvex::inline QorvexControls
