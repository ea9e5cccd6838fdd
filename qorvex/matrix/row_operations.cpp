#include "qorvex/matrix/row_operations.h"

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/rounded_products.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// Requires that the rows exist, and returns the number of columns.
template <class T, class... Rows>
std::size_t RequireRowIndices(const TQorMatrix<T>& matrix, Rows... rows) {
  const detail::Shape shape = detail::RequireRectangularShape(matrix);
  (detail::RequireRow(shape, rows), ...);
  (detail::RequireLength(matrix[rows], shape.cols), ...);
  return shape.cols;
}

template <class T, class... Cols>
void RequireColIndices(const TQorMatrix<T>& matrix, Cols... cols) {
  const detail::Shape shape = detail::RequireRectangularShape(matrix);
  (detail::RequireCol(shape, cols), ...);
  detail::RequireLengths(matrix, shape.cols);
}

}  // namespace

template <AnyElement T>
void SwapMatrixRows(TQorMatrix<T>& matrix, std::uint32_t row1, std::uint32_t row2) {
  const std::size_t width = RequireRowIndices(matrix, row1, row2);
  detail::SwapElements(matrix[row1].data(), matrix[row2].data(), width);
}

template <AnyElement T>
void SwapMatrixCols(TQorMatrix<T>& matrix, std::uint32_t col1, std::uint32_t col2) {
  RequireColIndices(matrix, col1, col2);
  for (TQorVector<T>& row : matrix) SwapXY(row[col1], row[col2]);
}

template <SignedArithmeticElement T>
void ScaleMatrixRow(TQorMatrix<T>& matrix, std::uint32_t row, ScalarOf<FactorOf<T>> factor) {
  if (factor == 1) return;
  const std::size_t width = RequireRowIndices(matrix, row);
  detail::ScaleElements(matrix[row].data(), width, factor);
}

template <SignedArithmeticElement T>
void ScaleMatrixCol(TQorMatrix<T>& matrix, std::uint32_t col, ScalarOf<FactorOf<T>> factor) {
  if (factor == 1) return;
  RequireColIndices(matrix, col);
  for (TQorVector<T>& row : matrix) row[col] = QorvexVector::detail::Product(row[col], factor);
}

template <SignedArithmeticElement T>
void AddMatrixRows(TQorMatrix<T>& matrix, std::uint32_t target, std::uint32_t source,
                   ScalarOf<FactorOf<T>> factor) {
  const std::size_t width = RequireRowIndices(matrix, target, source);
  detail::AddMultiple(matrix[target].data(), matrix[source].data(), width, factor);
}

template <SignedArithmeticElement T>
void AddMatrixCols(TQorMatrix<T>& matrix, std::uint32_t target, std::uint32_t source,
                   ScalarOf<FactorOf<T>> factor) {
  RequireColIndices(matrix, target, source);
  for (TQorVector<T>& row : matrix) {
    row[target] = QorvexVector::detail::ProductPlus(row[source], factor, row[target]);
  }
}

#define QORVEX_INSTANTIATE(T)                                                 \
  template void SwapMatrixRows(TQorMatrix<T>&, std::uint32_t, std::uint32_t); \
  template void SwapMatrixCols(TQorMatrix<T>&, std::uint32_t, std::uint32_t);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                                                         \
  template void ScaleMatrixRow(TQorMatrix<T>&, std::uint32_t, ScalarOf<FactorOf<T>>); \
  template void ScaleMatrixCol(TQorMatrix<T>&, std::uint32_t, ScalarOf<FactorOf<T>>); \
  template void AddMatrixRows(TQorMatrix<T>&, std::uint32_t, std::uint32_t,           \
                              ScalarOf<FactorOf<T>>);                                 \
  template void AddMatrixCols(TQorMatrix<T>&, std::uint32_t, std::uint32_t, ScalarOf<FactorOf<T>>);
QORVEX_FOR_SIGNED_ARITHMETIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
