#pragma once

/// @file
/// TQorUICtrlHolder, settings that several controls of a form share.

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_properties.h"
#include "qorvex/base_controls/uictrl.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/components/component_holder.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// Puts a TQorUICtrl on a form. Controls of the window whose property UICtrl has the holder's
/// object name are linked to it.
class QORVEX_EXPORT TQorUICtrlHolder : public ComponentHolder, public CellProperties {
  Q_OBJECT
  /// @{
  /// Published: see the members of CellSettings of the same names.
  QORVEX_PUBLISHED_SHARED_SETTINGS
  /// @}

 public:
  /// The defaults of CellSettings.
  explicit TQorUICtrlHolder(QWidget* parent = nullptr);
  ~TQorUICtrlHolder() override;

  /// The settings as controls are linked to them. They and the properties of the holder follow
  /// each other.
  [[nodiscard]] TQorUICtrl* UICtrl() const noexcept { return ui_ctrl_; }

 private:
  void SettingsChanged() override { ui_ctrl_->setSettings(Settings()); }
  void DoColorSetChange() override { ui_ctrl_->setSettings(Settings()); }

  TQorUICtrl* ui_ctrl_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
