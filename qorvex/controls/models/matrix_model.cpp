#include "qorvex/controls/models/matrix_model.h"

#include <stdexcept>

#include "qorvex/base/errors.h"
#include "qorvex/controls/detail/array_lines.h"
#include "qorvex/controls/models/detail/model_lines.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/shape.h"

namespace qorvex::inline QorvexControls {

TQorMatrixModel::TQorMatrixModel(QObject* parent) : TQorCustomModel(parent) {}

TQorMatrixModel::~TQorMatrixModel() = default;

TQorFloatMatrix TQorMatrixModel::Matrix() const {
  return CopyMatrix(store_);
}

void TQorMatrixModel::setMatrix(const TQorFloatMatrix& matrix) {
  if (!matrix.empty() && !MatrixIsRectangular(matrix)) RaiseMathError(rsMatrixRect);
  if (matrix.size() > detail::kMaxCount || MatrixCols(matrix) > detail::kMaxCount) {
    throw std::length_error("A model has at most 2147483647 rows and columns");
  }
  TQorFloatMatrix copy = CopyMatrix(matrix);
  const auto cols = static_cast<int>(MatrixCols(copy));
  if (copy.size() == store_.size() && cols == cols_) {
    store_.swap(copy);
    AllChanged();
    return;
  }
  beginResetModel();
  store_.swap(copy);
  cols_ = cols;
  endResetModel();
}

void TQorMatrixModel::CheckElement(quint32 row, quint32 col) const {
  if (rowCount() == 0 || columnCount() == 0) RaiseMathError(rsMatrixIsEmpty);
  if (row >= store_.size()) RaiseMathError(rsInvalidRow);
  if (col >= static_cast<quint32>(cols_)) RaiseMathError(rsInvalidCol);
}

Extended TQorMatrixModel::Element(quint32 row, quint32 col) const {
  CheckElement(row, col);
  return store_[row][col];
}

void TQorMatrixModel::setElement(quint32 row, quint32 col, Extended value) {
  CheckElement(row, col);
  Change(static_cast<int>(row), static_cast<int>(col), value);
}

int TQorMatrixModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(store_.size());
}

int TQorMatrixModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cols_;
}

bool TQorMatrixModel::insertRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || !detail::CanInsert(row, count, rowCount())) return false;
  // What fails for lack of memory fails before the views hear of it.
  const auto rows = static_cast<std::size_t>(count);
  TQorFloatMatrix longer = store_;
  // Each row is a copy of its own.
  longer.resize(store_.size() + rows, TQorFloatVector(cols_, detail::kNull));
  detail::MoveLastTo(longer, static_cast<std::size_t>(row), rows);
  beginInsertRows(parent, row, row + count - 1);
  store_.swap(longer);
  endInsertRows();
  return true;
}

bool TQorMatrixModel::removeRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || !detail::CanRemove(row, count, rowCount())) return false;
  beginRemoveRows(parent, row, row + count - 1);
  detail::Remove(store_, static_cast<std::size_t>(row), static_cast<std::size_t>(count));
  endRemoveRows();
  return true;
}

bool TQorMatrixModel::insertColumns(int col, int count, const QModelIndex& parent) {
  if (parent.isValid() || !detail::CanInsert(col, count, cols_)) return false;
  const auto cols = static_cast<std::size_t>(count);
  for (TQorFloatVector& row : store_) row.reserve(row.size() + cols);
  beginInsertColumns(parent, col, col + count - 1);
  for (TQorFloatVector& row : store_) {
    row.resize(row.size() + cols, detail::kNull);
    detail::MoveLastTo(row, static_cast<std::size_t>(col), cols);
  }
  cols_ += count;
  endInsertColumns();
  return true;
}

bool TQorMatrixModel::removeColumns(int col, int count, const QModelIndex& parent) {
  if (parent.isValid() || !detail::CanRemove(col, count, cols_)) return false;
  beginRemoveColumns(parent, col, col + count - 1);
  for (TQorFloatVector& row : store_) {
    detail::Remove(row, static_cast<std::size_t>(col), static_cast<std::size_t>(count));
  }
  cols_ -= count;
  endRemoveColumns();
  return true;
}

Extended TQorMatrixModel::Value(int row, int col) const {
  return store_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

void TQorMatrixModel::Store(int row, int col, Extended value) {
  store_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = value;
}

}  // namespace qorvex::inline QorvexControls
