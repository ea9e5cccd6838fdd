#include "qorvex/components/uictrl_holder.h"

namespace qorvex::inline QorvexControls {

TQorUICtrlHolder::TQorUICtrlHolder(QWidget* parent)
    : ComponentHolder(parent), ui_ctrl_(new TQorUICtrl(this)) {
  ShareName(ui_ctrl_);
  connect(ui_ctrl_, &TQorUICtrl::Changed, this, [this] { setSettings(ui_ctrl_->Settings()); });
}

TQorUICtrlHolder::~TQorUICtrlHolder() = default;

}  // namespace qorvex::inline QorvexControls
