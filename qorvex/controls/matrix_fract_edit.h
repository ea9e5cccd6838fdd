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
/// are floats all the same: fractions are how they look.
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
  /// How a fraction is shown; mixed at first.
  [[nodiscard]] TQorFractEdit::FractionDisplayMode FractionDisplay() const noexcept {
    return display_;
  }
  void setFractionDisplay(TQorFractEdit::FractionDisplayMode display);
  void resetFractionDisplay() { setFractionDisplay(TQorFractEdit::fdMixed); }
  /// @}

  /// @{
  /// The decimals to which a fraction agrees with its element, clamped to 0 to 255; 9 at first.
  [[nodiscard]] int DecimalsFract() const noexcept { return decimals_; }
  void setDecimalsFract(int decimals);
  void resetDecimalsFract() { setDecimalsFract(kDefaultDecimals); }
  /// @}

  /// @{
  /// One element as a fraction that agrees with it to DecimalsFract decimals, and the element that
  /// a fraction stands for. EMathError: rsMatrixIsEmpty, then rsInvalidRow, then rsInvalidCol when
  /// there is no such element; what Fraction2Float raises comes after that. A column one past the
  /// last is let through: it reads as 0 and takes nothing, and in virtual mode it is asked for and
  /// handed over like the others.
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
