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
  QORVEX_PUBLISHED_MATRIX_EDIT
  /// @}

 public:
  /// Four rows of three cells and an empty matrix.
  explicit TQorMatrixEdit(QWidget* parent = nullptr);
  ~TQorMatrixEdit() override;

  /// Reads the texts of cells in place of the control; empty by default.
  TQorConvertEvent OnConvert;
};

}  // QORVEX_WIDGET_UNIT(QorvexMatrixEdit)
