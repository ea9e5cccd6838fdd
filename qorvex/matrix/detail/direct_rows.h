#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/row_kernels.h"

namespace qorvex::inline QorvexMatrix::detail {

// The rows of a matrix under elementary operations, each made at once. The matrix must outlive this
// and keep its row buffers.
template <FloatElement T>
class DirectRows {
 public:
  DirectRows(TQorMatrix<T>& matrix, std::size_t cols) : cols_(cols) {
    rows_.reserve(matrix.size());
    for (TQorVector<T>& row : matrix) rows_.push_back(row.data());
  }

  [[nodiscard]] Extended At(std::size_t row, std::size_t col) const {
    return static_cast<Extended>(rows_[row][col]);
  }
  // The elements of a row, up to date and free to be changed.
  [[nodiscard]] std::span<T> Elements(std::size_t row) { return {rows_[row], cols_}; }
  void Swap(std::size_t row1, std::size_t row2) { SwapElements(rows_[row1], rows_[row2], cols_); }
  // Scales the elements from a column on.
  void Scale(std::size_t row, std::size_t from_col, Extended factor) {
    ScaleElements(rows_[row] + from_col, cols_ - from_col, factor);
  }
  // Adds the source row times the factor to the target row.
  void Add(std::size_t target, std::size_t source, Extended factor) {
    AddElements(rows_[target], rows_[source], cols_, factor);
  }
  // Brings the matrix up to date.
  void Settle() {}

 private:
  std::size_t cols_;
  std::vector<T*> rows_;
};

}  // namespace qorvex::inline QorvexMatrix::detail
