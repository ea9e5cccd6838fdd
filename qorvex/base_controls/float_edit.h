#pragma once

/// @file
/// TQorFloatEdit, a cell for a decimal number.

#include <functional>
#include <optional>

#include "qorvex/base_controls/custom_edit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// Reads the text of a cell in place of the cell; nothing if it is not a number. The text is
/// trimmed and not empty.
using TQorConvertEvent = std::function<std::optional<Extended>(const QString& text)>;

/// A cell that shows its value in the notation NumberFormat, correctly rounded: with DecimalPlaces
/// decimals, or SignificantDigits digits, or with all digits if FullAccuracy is set. Without
/// decimals are values from 2^63 on; they are shown with all digits in exponent form.
///
/// If ReadExpressions is set, it also reads "12%", which is exactly the decimal number 0.12, "(5)"
/// for -5, and products and quotients such as "2*3" and "1/3". Operations are done from left to
/// right, in extended precision; there is at most one division, since "1/2/24" may be a date.
class QORVEX_EXPORT TQorFloatEdit : public TQorCustomEdit {
  Q_OBJECT
  /// @{
  /// Published: see CellSettings and TQorCustomEdit.
  QORVEX_PUBLISHED(bool, TrimTrailingZeroes)
  QORVEX_PUBLISHED(bool, FullAccuracy)
  QORVEX_PUBLISHED(Qt::Alignment, Alignment)
  QORVEX_PUBLISHED(bool, AutoSelectClick)
  QORVEX_PUBLISHED(bool, AutoSelect)
  QORVEX_PUBLISHED(bool, AllowKbdNull)
  QORVEX_PUBLISHED(bool, BlankWhenZero)
  QORVEX_PUBLISHED(bool, BlankWhenNull)
  QORVEX_PUBLISHED(int, DecimalPlaces)
  QORVEX_PUBLISHED(bool, Null)
  QORVEX_PUBLISHED(QString, NullStr)
  QORVEX_PUBLISHED(bool, ReadOnly)
  QORVEX_PUBLISHED_COLORS
  QORVEX_PUBLISHED_NUMBERS
  /// @}

 public:
  /// A cell with the value 0.
  explicit TQorFloatEdit(QWidget* parent = nullptr);
  /// A cell of a panel, which shows nothing. It keeps the pointer to the panel's function, which
  /// reads texts in place of the cell's own OnConvert.
  TQorFloatEdit(QWidget* parent, const TQorConvertEvent* convert);
  ~TQorFloatEdit() override;

  /// Reads texts in place of the cell; empty by default.
  TQorConvertEvent OnConvert;

 protected:
  [[nodiscard]] QString TextOf(Extended value) const override;
  [[nodiscard]] FloatDigits Digits() const override;
  [[nodiscard]] CellReading ValueOf(const QString& text) const override;
  [[nodiscard]] QString Painted(std::string_view number) const override;
  [[nodiscard]] QString WholeText() const override;

 private:
  const TQorConvertEvent* convert_ = &OnConvert;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
