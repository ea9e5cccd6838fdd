#pragma once

/// @file
/// SharedSettings, the link of a control to the settings that several controls share.

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

#include "qorvex/base_controls/uictrl.h"

namespace qorvex::inline QorvexControls::detail {

/// The settings of a control's cells: its own, or the shared ones that it is linked to.
class SharedSettings {
 public:
  /// Not linked. The function is called when the settings of cells may have changed.
  SharedSettings(QWidget& control, std::function<void()> changed);
  ~SharedSettings();
  SharedSettings(const SharedSettings&) = delete;
  SharedSettings& operator=(const SharedSettings&) = delete;

  [[nodiscard]] TQorUICtrl* Linked() const noexcept { return linked_; }
  /// The name by which a form stores the link.
  [[nodiscard]] QString Name() const;
  /// @{
  /// Links to an object, or to the nearest one of the name in the control's window, which may come
  /// into the form later: Find looks for it again.
  void Link(TQorUICtrl* settings);
  void Link(const QString& name);
  void Find();
  /// @}

  [[nodiscard]] TQorUICtrl::TQorUIUsage Usage() const noexcept { return usage_; }
  void SetUsage(TQorUICtrl::TQorUIUsage usage);

  /// The settings of the cells of a control whose own settings are given.
  [[nodiscard]] CellSettings Merged(const CellSettings& own) const;

  static constexpr TQorUICtrl::TQorUIUsage kUseAll{0xF};

 private:
  void Connect(TQorUICtrl* settings);
  void Disconnect();

  QWidget& control_;
  std::function<void()> changed_;
  QPointer<TQorUICtrl> linked_;
  QString name_;
  TQorUICtrl::TQorUIUsage usage_ = kUseAll;
};

}  // namespace qorvex::inline QorvexControls::detail
