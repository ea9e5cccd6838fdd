#pragma once

#include <cstddef>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/rounded_products.h"

namespace qorvex::inline QorvexMatrix::detail {

// The rows of a matrix, with the elementary row operations. The matrix must outlive this object and
// keep its row buffers.
//
// Meant for eliminations: columns begin one after the other, and the rows that are exchanged,
// scaled or added to have been cleared before the present one. Operations skip these elements,
// which stay +0, and additions also the present column, which has been cleared too.
template <FloatElement T>
class DirectRows {
 public:
  DirectRows(TQorMatrix<T>& matrix, std::size_t cols) : rows_(matrix.data()), cols_(cols) {}

  void BeginColumn(std::size_t col) { col_ = col; }
  [[nodiscard]] Extended At(std::size_t row, std::size_t col) const {
    return static_cast<Extended>(rows_[row][col]);
  }
  // Sets an element of the present column to +0.
  void Clear(std::size_t row, std::size_t col) { rows_[row][col] = 0; }
  void Swap(std::size_t row1, std::size_t row2) {
    SwapElements(From(row1, col_), From(row2, col_), cols_ - col_);
  }
  void Scale(std::size_t row, Extended factor) {
    ScaleElements(From(row, col_), cols_ - col_, factor);
  }
  // Adds factor * source row to the target row.
  void Add(std::size_t target, std::size_t source, Extended factor) {
    AddMultiple(From(target, col_ + 1), From(source, col_ + 1), cols_ - col_ - 1, factor);
  }
  // Does nothing, because no operation is deferred.
  void Flush() {}

 private:
  [[nodiscard]] T* From(std::size_t row, std::size_t col) { return rows_[row].data() + col; }

  TQorVector<T>* rows_;
  std::size_t cols_;
  std::size_t col_ = 0;
};

}  // namespace qorvex::inline QorvexMatrix::detail
