#pragma once

/// @file
/// TQorMatrixModel, a matrix as a model of Qt.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/models/custom_model.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// A matrix as a table; see TQorCustomModel for its roles. It has at most 2^31 - 1 rows and
/// columns.
class QORVEX_EXPORT TQorMatrixModel : public TQorCustomModel {
  Q_OBJECT

 public:
  /// A matrix without rows and columns.
  explicit TQorMatrixModel(QObject* parent = nullptr);
  ~TQorMatrixModel() override;

  /// @{
  /// The whole matrix, as a copy that shares no memory with the model. Setting copies too: a matrix
  /// of the same size raises dataChanged, another one resets the model. EMathError with
  /// rsMatrixRect for rows of different lengths; std::length_error for more than 2^31 - 1 rows or
  /// columns. O(elements).
  [[nodiscard]] TQorFloatMatrix Matrix() const;
  void setMatrix(const TQorFloatMatrix& matrix);
  /// @}

  /// @{
  /// One element. EMathError: rsMatrixIsEmpty, then rsInvalidRow, then rsInvalidCol if there is no
  /// such element.
  [[nodiscard]] Extended Element(quint32 row, quint32 col) const;
  void setElement(quint32 row, quint32 col, Extended value);
  /// @}

  /// @{
  /// Qt's interface of models. New elements are null.
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  bool insertRows(int row, int count, const QModelIndex& parent = {}) override;
  bool removeRows(int row, int count, const QModelIndex& parent = {}) override;
  bool insertColumns(int col, int count, const QModelIndex& parent = {}) override;
  bool removeColumns(int col, int count, const QModelIndex& parent = {}) override;
  /// @}

 protected:
  [[nodiscard]] Extended Value(int row, int col) const override;
  void Store(int row, int col, Extended value) override;

 private:
  void CheckElement(quint32 row, quint32 col) const;

  TQorFloatMatrix store_;
  // A matrix without rows may have columns.
  int cols_ = 0;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
