#pragma once

/// @file
/// TQorFractEdit, a cell for a mixed fraction.

#include "qorvex/base/fractions.h"
#include "qorvex/base_controls/custom_edit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A cell that shows its value as a fraction which agrees with it to DecimalsFract decimals, and
/// takes fractions ("2 1/3", "-7/5") as well as decimal numbers. The value is still a float: a
/// typed fraction is rounded to 80 bits once. A fraction that is wider than the cell is painted as
/// a decimal number with up to DecimalsFract decimals.
class QORVEX_EXPORT TQorFractEdit : public TQorCustomEdit {
  Q_OBJECT
  /// @{
  /// Published: see CellSettings and TQorCustomEdit.
  QORVEX_PUBLISHED(Qt::Alignment, Alignment)
  QORVEX_PUBLISHED(bool, AutoSelectClick)
  QORVEX_PUBLISHED(bool, AutoSelect)
  QORVEX_PUBLISHED(bool, AllowKbdNull)
  QORVEX_PUBLISHED(bool, BlankWhenZero)
  QORVEX_PUBLISHED(bool, BlankWhenNull)
  QORVEX_PUBLISHED(int, DecimalsFract)
  QORVEX_PUBLISHED(FractionDisplayMode, FractionDisplay)
  QORVEX_PUBLISHED(bool, Null)
  QORVEX_PUBLISHED(QString, NullStr)
  QORVEX_PUBLISHED(bool, ReadOnly)
  QORVEX_PUBLISHED_COLORS
  /// @}

 public:
  /// TQorFractionDisplay for forms.
  enum FractionDisplayMode {
    fdMixed = qorvex::fdMixed,       ///< "2 1/3"
    fdImproper = qorvex::fdImproper  ///< "7/3"
  };
  Q_ENUM(FractionDisplayMode)

  /// A cell with the value 0.
  explicit TQorFractEdit(QWidget* parent = nullptr);
  /// A cell of a panel, which shows nothing.
  TQorFractEdit(QWidget* parent, FractionDisplayMode display, int decimals);
  ~TQorFractEdit() override;

  /// @{
  /// How fractions are shown; mixed by default.
  [[nodiscard]] FractionDisplayMode FractionDisplay() const noexcept { return display_; }
  void setFractionDisplay(FractionDisplayMode display);
  void resetFractionDisplay() { setFractionDisplay(fdMixed); }
  /// @}

  /// @{
  /// The decimals to which the fraction agrees with the value, clamped to 0 to 255; 9 by default.
  /// From 18 on the fraction has full accuracy.
  [[nodiscard]] int DecimalsFract() const noexcept { return decimals_; }
  void setDecimalsFract(int decimals);
  void resetDecimalsFract() { setDecimalsFract(kDefaultDecimals); }
  /// @}

 protected:
  [[nodiscard]] QString TextOf(Extended value) const override;
  [[nodiscard]] FloatDigits Digits() const override;
  [[nodiscard]] CellReading ValueOf(const QString& text) const override;

 private:
  static constexpr int kDefaultDecimals = 9;

  FractionDisplayMode display_ = fdMixed;
  int decimals_ = kDefaultDecimals;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
