#include "qorvex/controls/models/vector_model.h"

#include <stdexcept>

#include "qorvex/base/errors.h"
#include "qorvex/controls/detail/array_lines.h"
#include "qorvex/controls/models/detail/model_lines.h"

namespace qorvex::inline QorvexControls {

TQorVectorModel::TQorVectorModel(QObject* parent) : TQorCustomModel(parent) {}

TQorVectorModel::~TQorVectorModel() = default;

TQorFloatVector TQorVectorModel::Vector() const {
  return TQorFloatVector{std::span<const Extended>(store_)};
}

void TQorVectorModel::setVector(const TQorFloatVector& vector) {
  if (vector.size() > detail::kMaxCount) {
    throw std::length_error("A model has at most 2147483647 rows");
  }
  TQorFloatVector copy{std::span<const Extended>(vector)};
  if (copy.size() == store_.size()) {
    store_.swap(copy);
    AllChanged();
    return;
  }
  beginResetModel();
  store_.swap(copy);
  endResetModel();
}

void TQorVectorModel::CheckRow(quint32 row) const {
  if (store_.empty()) RaiseMathError(rsVectorIsEmpty);
  if (row >= store_.size()) RaiseMathError(rsInvalidRow);
}

Extended TQorVectorModel::Element(quint32 row) const {
  CheckRow(row);
  return store_[row];
}

void TQorVectorModel::setElement(quint32 row, Extended value) {
  CheckRow(row);
  Change(static_cast<int>(row), 0, value);
}

int TQorVectorModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(store_.size());
}

int TQorVectorModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1;
}

bool TQorVectorModel::insertRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || !detail::CanInsert(row, count, rowCount())) return false;
  // What fails for lack of memory fails before the views hear of it.
  const auto rows = static_cast<std::size_t>(count);
  store_.reserve(store_.size() + rows);
  beginInsertRows(parent, row, row + count - 1);
  store_.resize(store_.size() + rows, detail::kNull);
  detail::MoveLastTo(store_, static_cast<std::size_t>(row), rows);
  endInsertRows();
  return true;
}

bool TQorVectorModel::removeRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || !detail::CanRemove(row, count, rowCount())) return false;
  beginRemoveRows(parent, row, row + count - 1);
  detail::Remove(store_, static_cast<std::size_t>(row), static_cast<std::size_t>(count));
  endRemoveRows();
  return true;
}

Extended TQorVectorModel::Value(int row, int) const {
  return store_[static_cast<std::size_t>(row)];
}

void TQorVectorModel::Store(int row, int, Extended value) {
  store_[static_cast<std::size_t>(row)] = value;
}

}  // namespace qorvex::inline QorvexControls
