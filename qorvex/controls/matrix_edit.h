#pragma once

/// @file
/// TQorMatrixEdit, an editor of a matrix of decimal numbers.

#include "qorvex/base/export.h"
#include "qorvex/base_controls/float_edit.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/custom_matrix_edit.h"

QORVEX_WIDGET_UNIT(QorvexMatrixEdit) {

/// A TQorCustomMatrixEdit whose cells show and take decimal numbers.
class QORVEX_EXPORT TQorMatrixEdit final : public TQorCustomMatrixEdit {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name in TQorCustomMatrixEdit, CellPanel or
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
  /// @}

 public:
  /// Four rows of three cells and an empty matrix.
  explicit TQorMatrixEdit(QWidget* parent = nullptr);
  ~TQorMatrixEdit() override;

  /// Reads the texts of cells in place of the control; empty for none.
  TQorConvertEvent OnConvert;

 private:
  [[nodiscard]] std::optional<Extended> DoConvert(const QString& text) const;
};

}  // QORVEX_WIDGET_UNIT(QorvexMatrixEdit)
