#pragma once

/// @file
/// TQorVectorModel, a vector as a model of Qt.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/models/custom_model.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// A vector as a table of one column; see TQorCustomModel for its roles. It has at most 2^31 - 1
/// elements.
class QORVEX_EXPORT TQorVectorModel : public TQorCustomModel {
  Q_OBJECT

 public:
  /// An empty vector.
  explicit TQorVectorModel(QObject* parent = nullptr);
  ~TQorVectorModel() override;

  /// @{
  /// The whole vector, as a copy that shares no memory with the model. Setting copies too: a vector
  /// of the same length raises dataChanged, another one resets the model. std::length_error for
  /// more than 2^31 - 1 elements. O(length).
  [[nodiscard]] TQorFloatVector Vector() const;
  void setVector(const TQorFloatVector& vector);
  /// @}

  /// @{
  /// One element. EMathError: rsVectorIsEmpty, then rsInvalidRow if there is no such element.
  [[nodiscard]] Extended Element(quint32 row) const;
  void setElement(quint32 row, Extended value);
  /// @}

  /// @{
  /// Qt's interface of models. New elements are null.
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  bool insertRows(int row, int count, const QModelIndex& parent = {}) override;
  bool removeRows(int row, int count, const QModelIndex& parent = {}) override;
  /// @}

 protected:
  [[nodiscard]] Extended Value(int row, int col) const override;
  void Store(int row, int col, Extended value) override;

 private:
  void CheckRow(quint32 row) const;

  TQorFloatVector store_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
