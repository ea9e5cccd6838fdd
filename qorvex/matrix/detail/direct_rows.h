#pragma once

#include <cassert>
#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/rounded_products.h"
#include "qorvex/matrix/detail/small_memory.h"

namespace qorvex::inline QorvexMatrix::detail {

// The rows of a matrix, with the elementary row operations. The matrix must outlive this object and
// keep its row buffers.
//
// Leading elements of a row that have been cleared stay +0: scalings and additions skip them.
template <FloatElement T>
class DirectRows {
 public:
  DirectRows(TQorMatrix<T>& matrix, std::size_t cols) : cols_(cols) {
    rows_.reserve(matrix.size());
    for (TQorVector<T>& row : matrix) rows_.push_back({.elements = row.data()});
  }

  // Does nothing, because all columns are up to date.
  void BeginColumn(std::size_t) {}
  [[nodiscard]] Extended At(std::size_t row, std::size_t col) const {
    return static_cast<Extended>(rows_[row].elements[col]);
  }
  // Sets an element to +0. All elements to its left must have been cleared already.
  void Clear(std::size_t row, std::size_t col) {
    assert(rows_[row].cleared == col);
    rows_[row].elements[col] = 0;
    rows_[row].cleared = col + 1;
  }
  void Swap(std::size_t row1, std::size_t row2) {
    SwapElements(rows_[row1].elements, rows_[row2].elements, cols_);
    std::swap(rows_[row1].cleared, rows_[row2].cleared);
  }
  void Scale(std::size_t row, Extended factor) {
    const auto [elements, cleared] = rows_[row];
    ScaleElements(elements + cleared, cols_ - cleared, factor);
  }
  // Adds factor * source row to the target row.
  void Add(std::size_t target, std::size_t source, Extended factor) {
    const auto [elements, cleared] = rows_[target];
    AddMultiple(elements + cleared, rows_[source].elements + cleared, cols_ - cleared, factor);
  }
  // Does nothing, because no operation is deferred.
  void Flush() {}

 private:
  struct Row {
    T* elements;
    std::size_t cleared = 0;
  };

  std::size_t cols_;
  SmallMemory memory_;
  std::pmr::vector<Row> rows_{memory_.get()};
};

}  // namespace qorvex::inline QorvexMatrix::detail
