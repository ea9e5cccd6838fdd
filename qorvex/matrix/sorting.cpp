#include "qorvex/matrix/sorting.h"

#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/copy_element.h"
#include "qorvex/vector/detail/sorted_indices.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// The index of the row or column that belongs at each position.
using Order = std::vector<std::uint32_t>;

template <class T, class ElementAt>
Order SortedOrder(std::size_t count, bool ascending, ElementAt element_at) {
  Order order(count);
  const QorvexVector::detail::SortedIndices<T> sorted(count, ascending, element_at);
  for (std::size_t position = 0; position < count; ++position) {
    order[position] = static_cast<std::uint32_t>(sorted.Index(position));
  }
  return order;
}

// Moves the contents of rows along each cycle of the permutation, so that every row is read before
// it is written. The scratch row holds the first row of a cycle.
template <class T>
void PermuteRows(TQorMatrix<T>& matrix, Order order, std::size_t cols, T* scratch) {
  const auto copy = [bytes = cols * sizeof(T)](T* to, const T* from) {
    std::memmove(static_cast<void*>(to), from, bytes);
  };
  for (std::uint32_t first = 0; first < order.size(); ++first) {
    if (order[first] == first) continue;
    copy(scratch, matrix[first].data());
    std::uint32_t hole = first;
    while (order[hole] != first) {
      copy(matrix[hole].data(), matrix[order[hole]].data());
      hole = std::exchange(order[hole], hole);
    }
    copy(matrix[hole].data(), scratch);
    order[hole] = hole;
  }
}

// Permutes each row by way of the scratch row.
template <class T>
void PermuteCols(TQorMatrix<T>& matrix, const Order& order, T* scratch) {
  const std::size_t cols = order.size();
  for (TQorVector<T>& row : matrix) {
    T* const elements = row.data();
    for (std::size_t j = 0; j < cols; ++j) detail::CopyElement(elements[order[j]], scratch[j]);
    std::memcpy(static_cast<void*>(elements), scratch, cols * sizeof(T));
  }
}

}  // namespace

template <AnyElement T>
void QSortMatrixRowsOnCol(TQorMatrix<T>& matrix, std::uint32_t col, bool ascending) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  if (shape.HasAtMostOneLine()) return;
  detail::RequireRectangular(shape);
  detail::RequireCol(shape, col);
  detail::RequireLengths(matrix, shape.cols);
  Order order = SortedOrder<T>(shape.rows, ascending,
                               [&](std::size_t i) -> const T& { return matrix[i][col]; });
  const auto scratch = std::make_unique_for_overwrite<T[]>(shape.cols);
  PermuteRows(matrix, std::move(order), shape.cols, scratch.get());
}

template <AnyElement T>
void QSortMatrixColsOnRow(TQorMatrix<T>& matrix, std::uint32_t row, bool ascending) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  if (shape.HasAtMostOneLine()) return;
  detail::RequireRectangular(shape);
  detail::RequireRow(shape, row);
  detail::RequireLengths(matrix, shape.cols);
  const T* const keys = matrix[row].data();
  const Order order =
      SortedOrder<T>(shape.cols, ascending, [=](std::size_t j) -> const T& { return keys[j]; });
  const auto scratch = std::make_unique_for_overwrite<T[]>(shape.cols);
  PermuteCols(matrix, order, scratch.get());
}

#define QORVEX_INSTANTIATE(T)                                              \
  template void QSortMatrixRowsOnCol(TQorMatrix<T>&, std::uint32_t, bool); \
  template void QSortMatrixColsOnRow(TQorMatrix<T>&, std::uint32_t, bool);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
