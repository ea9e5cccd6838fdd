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
  Q_PROPERTY(QString UICtrl READ UICtrlName WRITE setUICtrl RESET resetUICtrl)
  Q_PROPERTY(
      qorvex::TQorUICtrl::TQorUIUsage UIUsage READ UIUsage WRITE setUIUsage RESET resetUIUsage)
  QORVEX_PUBLISHED_COLORS
  QORVEX_PUBLISHED(bool, TrimTrailingZeroes)
  QORVEX_PUBLISHED(bool, FullAccuracy)
  QORVEX_PUBLISHED(bool, AutoSelectClick)
  QORVEX_PUBLISHED(bool, BlankWhenZero)
  QORVEX_PUBLISHED(bool, BlankWhenNull)
  QORVEX_PUBLISHED(bool, Null)
  QORVEX_PUBLISHED(bool, ReadOnly)
  QORVEX_PUBLISHED(bool, VirtualMode)
  QORVEX_PUBLISHED(bool, AutoSelect)
  QORVEX_PUBLISHED(bool, AllowKbdNull)
  QORVEX_PUBLISHED(bool, TabStop)
  QORVEX_PUBLISHED(Qt::Alignment, Alignment)
  QORVEX_PUBLISHED(int, CellHeight)
  QORVEX_PUBLISHED(int, CellWidth)
  QORVEX_PUBLISHED(int, DecimalPlaces)
  QORVEX_PUBLISHED(uint, DisplayLeftCol)
  QORVEX_PUBLISHED(uint, DisplayTopRow)
  QORVEX_PUBLISHED(int, NoOfColEdits)
  QORVEX_PUBLISHED(int, NoOfRowEdits)
  QORVEX_PUBLISHED(uint, NoOfCols)
  QORVEX_PUBLISHED(uint, NoOfRows)
  QORVEX_PUBLISHED(QString, NullStr)
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
