#pragma once

/// @file
/// TQorUICtrlHolder, settings shared by several controls of a form.

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_properties.h"
#include "qorvex/base_controls/uictrl.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/components/component_holder.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// Puts a TQorUICtrl on a form. A control of the same window whose property UICtrl is the object
/// name of the holder takes its settings from it.
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

  /// The object that controls link to. Its settings and the properties of the holder are always the
  /// same.
  [[nodiscard]] TQorUICtrl* UICtrl() const noexcept { return ui_ctrl_; }

 private:
  void SettingsChanged() override { ui_ctrl_->setSettings(Settings()); }
  void DoColorSetChange() override { ui_ctrl_->setSettings(Settings()); }

  TQorUICtrl* ui_ctrl_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
