#pragma once

/// @file
/// TQorMatrixFractEdit, an editor of a matrix whose elements show as fractions.

#include "qorvex/base/export.h"
#include "qorvex/base/fractions.h"
#include "qorvex/base_controls/fract_edit.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/custom_matrix_edit.h"

QORVEX_WIDGET_UNIT(QorvexMatrixFractEdit) {

/// A TQorCustomMatrixEdit whose cells show and take fractions, as TQorFractEdit does. The elements
/// are still floats; only their display is a fraction.
class QORVEX_EXPORT TQorMatrixFractEdit final : public TQorCustomMatrixEdit {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name here, in TQorCustomMatrixEdit, CellPanel or
  /// CellProperties.
  QORVEX_PUBLISHED_MATRIX_EDIT
  QORVEX_PUBLISHED(qorvex::TQorFractEdit::FractionDisplayMode, FractionDisplay)
  QORVEX_PUBLISHED(int, DecimalsFract)
  /// @}

 public:
  /// Four rows of three cells and an empty matrix.
  explicit TQorMatrixFractEdit(QWidget* parent = nullptr);
  ~TQorMatrixFractEdit() override;

  /// @{
  /// How fractions are shown; mixed by default.
  [[nodiscard]] TQorFractEdit::FractionDisplayMode FractionDisplay() const noexcept {
    return display_;
  }
  void setFractionDisplay(TQorFractEdit::FractionDisplayMode display);
  void resetFractionDisplay() { setFractionDisplay(TQorFractEdit::fdMixed); }
  /// @}

  /// @{
  /// The decimals to which a fraction agrees with its element, clamped to 0 to 255; 9 by default.
  [[nodiscard]] int DecimalsFract() const noexcept { return decimals_; }
  void setDecimalsFract(int decimals);
  void resetDecimalsFract() { setDecimalsFract(kDefaultDecimals); }
  /// @}

  /// @{
  /// One element as a fraction that agrees with it to DecimalsFract decimals, and the element that
  /// a fraction stands for. EMathError: rsMatrixIsEmpty, then rsInvalidRow, then rsInvalidCol if
  /// there is no such element; then what Fraction2Float raises. The column one past the last is
  /// accepted: it reads as 0 and writing to it has no effect, and in virtual mode it is requested
  /// and passed on like the others.
  [[nodiscard]] TQorMixedFraction FractElement(quint32 row, quint32 col) const;
  void setFractElement(quint32 row, quint32 col, const TQorMixedFraction& fraction);
  /// @}

 private:
  static constexpr int kDefaultDecimals = 9;

  void ApplyToCells();

  TQorFractEdit::FractionDisplayMode display_ = TQorFractEdit::fdMixed;
  int decimals_ = kDefaultDecimals;
};

}  // QORVEX_WIDGET_UNIT(QorvexMatrixFractEdit)
