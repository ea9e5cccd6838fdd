#pragma once

/// @file
/// TQorFloatEdit, a cell for a decimal number.

#include <functional>
#include <optional>

#include "qorvex/base_controls/custom_edit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// Reads the text of a cell; nothing if it is not a number. The text is trimmed and not empty.
using TQorConvertEvent = std::function<std::optional<Extended>(const QString& text)>;

/// A cell that shows its value with DecimalPlaces decimals, correctly rounded, or with all digits
/// if FullAccuracy is set. Values from 2^63 on have no decimals and are shown with all digits in
/// scientific notation.
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
  [[nodiscard]] std::optional<Extended> ValueOf(const QString& text) const override;

 private:
  const TQorConvertEvent* convert_ = &OnConvert;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
