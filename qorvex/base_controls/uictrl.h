#pragma once

/// @file
/// TQorUICtrl, settings that several controls share.

#include <QObject>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_properties.h"
#include "qorvex/base_controls/unit.h"

/// The settings that controls can share, as properties.
#define QORVEX_PUBLISHED_SHARED_SETTINGS     \
  QORVEX_PUBLISHED(bool, TrimTrailingZeroes) \
  QORVEX_PUBLISHED(bool, FullAccuracy)       \
  QORVEX_PUBLISHED(Qt::Alignment, Alignment) \
  QORVEX_PUBLISHED(int, DecimalPlaces)       \
  QORVEX_PUBLISHED(bool, AllowKbdNull)       \
  QORVEX_PUBLISHED(bool, BlankWhenZero)      \
  QORVEX_PUBLISHED(bool, BlankWhenNull)      \
  QORVEX_PUBLISHED(QString, NullStr)         \
  QORVEX_PUBLISHED(bool, AutoSelectClick)    \
  QORVEX_PUBLISHED(bool, AutoSelect)         \
  QORVEX_PUBLISHED_COLORS                    \
  QORVEX_PUBLISHED_NUMBERS

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// The settings of cells for any number of controls. A control that is linked to it uses the
/// settings that its property UIUsage names, and its own settings for the others and after this
/// object is deleted.
class QORVEX_EXPORT TQorUICtrl : public QObject, public CellProperties {
  Q_OBJECT
  /// @{
  /// Published: see the members of CellSettings of the same names.
  QORVEX_PUBLISHED_SHARED_SETTINGS
  /// @}

 public:
  /// Groups of shared settings.
  enum TQorUIUsageTypes {
    uuColors = 1,        ///< EditColors.
    uuNumberFormat = 2,  ///< NumberSettings, and whether expressions are read.
    uuNullHandling = 4,  ///< NullHandling.
    uuBehaviour = 8      ///< SelectionBehaviour.
  };
  /// A set of them.
  Q_DECLARE_FLAGS(TQorUIUsage, TQorUIUsageTypes)
  Q_FLAG(TQorUIUsage)

  /// The defaults of CellSettings.
  explicit TQorUICtrl(QObject* owner = nullptr);
  ~TQorUICtrl() override;

  /// The given settings of a control with those that usage names replaced by the shared ones.
  [[nodiscard]] CellSettings Merged(CellSettings own, TQorUIUsage usage) const;

 Q_SIGNALS:
  /// A setting has changed.
  void Changed();

 private:
  void SettingsChanged() override;
  void DoColorSetChange() override;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TQorUICtrl::TQorUIUsage)

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
