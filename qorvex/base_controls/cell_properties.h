#pragma once

/// @file
/// The properties that single cells, panels of cells and shared settings have in common.

#include <QColor>
#include <QString>
#include <algorithm>
#include <memory>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_settings.h"
#include "qorvex/base_controls/edit_color_set.h"
#include "qorvex/base_controls/unit.h"

/// The colours of the owned colour set as properties of the control, since a form cannot store the
/// set.
#define QORVEX_PUBLISHED_COLORS                        \
  QORVEX_PUBLISHED(QColor, ColorSetText)               \
  QORVEX_PUBLISHED(QColor, ColorSetBackground)         \
  QORVEX_PUBLISHED(QColor, ColorSetNegativeText)       \
  QORVEX_PUBLISHED(QColor, ColorSetFocusBackground)    \
  QORVEX_PUBLISHED(QColor, ColorSetReadOnlyBackground) \
  QORVEX_PUBLISHED(QColor, ColorSetInvalidText)        \
  QORVEX_PUBLISHED(QColor, ColorSetInvalidBackground)

/// How numbers are written and read, as properties that were added to the older ones.
#define QORVEX_PUBLISHED_NUMBERS                                 \
  QORVEX_PUBLISHED(qorvex::NumberSettings::Format, NumberFormat) \
  QORVEX_PUBLISHED(int, SignificantDigits)                       \
  QORVEX_PUBLISHED(bool, Grouping)                               \
  QORVEX_PUBLISHED(bool, ReadExpressions)

namespace qorvex::inline QorvexBaseControls {

/// Accessors of the settings of cells, for a class that publishes them as properties. See
/// CellSettings for their meaning and defaults. Setting the current value does nothing.
class QORVEX_EXPORT CellProperties {
 public:
  CellProperties(const CellProperties&) = delete;
  CellProperties& operator=(const CellProperties&) = delete;

  /// The colours as an object, which is made when it is first asked for and lives as long as its
  /// owner.
  [[nodiscard]] TQorEditColorSet* ColorSet();

  /// @{
  /// All settings at once.
  [[nodiscard]] const CellSettings& Settings() const noexcept { return settings_; }
  void setSettings(const CellSettings& settings);
  /// @}

/// @cond internal
#define QORVEX_CELL_PROPERTY(Type, Name, member) \
  [[nodiscard]] Type Name() const {              \
    return settings_.member;                     \
  }                                              \
  void set##Name(Type value) {                   \
    Assign(settings_.member, value);             \
  }                                              \
  void reset##Name() {                           \
    set##Name(CellSettings().member);            \
  }
#define QORVEX_COLOR_SET_PROPERTY(Name, member) \
  [[nodiscard]] QColor ColorSet##Name() const { \
    return settings_.colors.member;             \
  }                                             \
  void setColorSet##Name(const QColor& color) { \
    EditColors colors = settings_.colors;       \
    colors.member = color;                      \
    SetColors(colors);                          \
  }                                             \
  void resetColorSet##Name() {                  \
    setColorSet##Name({});                      \
  }
  /// @endcond
  /// @{
  /// One setting. DecimalPlaces is clamped to 0 to 255, SignificantDigits to 1 to 255.
  QORVEX_CELL_PROPERTY(bool, TrimTrailingZeroes, number.trim_trailing_zeroes)
  QORVEX_CELL_PROPERTY(bool, FullAccuracy, number.full_accuracy)
  QORVEX_CELL_PROPERTY(NumberSettings::Format, NumberFormat, number.format)
  QORVEX_CELL_PROPERTY(bool, Grouping, number.grouping)
  QORVEX_CELL_PROPERTY(Qt::Alignment, Alignment, number.alignment)
  QORVEX_CELL_PROPERTY(bool, AutoSelectClick, selection.auto_select_click)
  QORVEX_CELL_PROPERTY(bool, AutoSelect, selection.auto_select)
  QORVEX_CELL_PROPERTY(bool, AllowKbdNull, nulls.allow_kbd_null)
  QORVEX_CELL_PROPERTY(bool, BlankWhenZero, nulls.blank_when_zero)
  QORVEX_CELL_PROPERTY(bool, BlankWhenNull, nulls.blank_when_null)
  QORVEX_CELL_PROPERTY(QString, NullStr, nulls.null_str)
  QORVEX_CELL_PROPERTY(bool, ReadOnly, read_only)
  QORVEX_CELL_PROPERTY(bool, ReadExpressions, read_expressions)
  [[nodiscard]] int DecimalPlaces() const {
    return settings_.number.decimal_places;
  }
  void setDecimalPlaces(int places) {
    Assign(settings_.number.decimal_places, std::clamp(places, 0, 255));
  }
  void resetDecimalPlaces() {
    setDecimalPlaces(NumberSettings().decimal_places);
  }
  [[nodiscard]] int SignificantDigits() const {
    return settings_.number.significant_digits;
  }
  void setSignificantDigits(int digits) {
    Assign(settings_.number.significant_digits, std::clamp(digits, 1, 255));
  }
  void resetSignificantDigits() {
    setSignificantDigits(NumberSettings().significant_digits);
  }
  /// @}
  /// @{
  /// One colour of the set.
  QORVEX_COLOR_SET_PROPERTY(Text, text)
  QORVEX_COLOR_SET_PROPERTY(Background, background)
  QORVEX_COLOR_SET_PROPERTY(NegativeText, negative_text)
  QORVEX_COLOR_SET_PROPERTY(FocusBackground, focus_background)
  QORVEX_COLOR_SET_PROPERTY(ReadOnlyBackground, read_only_background)
  QORVEX_COLOR_SET_PROPERTY(InvalidText, invalid_text)
  QORVEX_COLOR_SET_PROPERTY(InvalidBackground, invalid_background)
  /// @}
#undef QORVEX_CELL_PROPERTY
#undef QORVEX_COLOR_SET_PROPERTY

 protected:
  CellProperties();
  virtual ~CellProperties();

  /// A setting other than a colour has changed.
  virtual void SettingsChanged() = 0;
  /// A colour has changed.
  virtual void DoColorSetChange() = 0;

 private:
  template <class T>
  void Assign(T& member, const T& value) {
    if (member == value) return;
    member = value;
    SettingsChanged();
  }

  void SetColors(const EditColors& colors);

  CellSettings settings_;
  std::unique_ptr<TQorEditColorSet> color_set_;
};

}  // namespace qorvex::inline QorvexBaseControls
