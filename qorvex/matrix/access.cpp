#include "qorvex/matrix/access.h"

#include <algorithm>
#include <span>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/copy_element.h"

namespace qorvex::inline QorvexMatrix {

template <AnyElement T>
TQorVector<T> ExtractMatrixRow(const TQorMatrix<T>& matrix, std::uint32_t row) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  if (shape.HasAtMostOneLine()) return {};
  detail::RequireRow(shape, row);
  detail::RequireLength(matrix[row], shape.cols);
  return TQorVector<T>(std::span(matrix[row]).first(shape.cols));
}

template <AnyElement T>
TQorVector<T> ExtractMatrixCol(const TQorMatrix<T>& matrix, std::uint32_t col) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  if (shape.HasAtMostOneLine()) return {};
  detail::RequireCol(shape, col);
  detail::RequireLengths(matrix, shape.cols);
  auto result = TQorVector<T>::ForOverwrite(shape.rows);
  for (std::size_t i = 0; i < shape.rows; ++i) detail::CopyElement(matrix[i][col], result[i]);
  return result;
}

template <AnyElement T>
void OverwriteMatrixRow(TQorMatrix<T>& matrix, std::uint32_t row,
                        VectorView<std::type_identity_t<T>> vector, ScalarOf<T> fill) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  if (shape.HasAtMostOneLine()) return;
  detail::RequireRow(shape, row);
  detail::RequireLength(matrix[row], shape.cols);
  T* const elements = matrix[row].data();
  const std::size_t given = std::min<std::size_t>(vector.size(), shape.cols);
  std::copy_n(vector.data(), given, elements);
  std::fill(elements + given, elements + shape.cols, static_cast<T>(fill));
}

template <AnyElement T>
void OverwriteMatrixCol(TQorMatrix<T>& matrix, std::uint32_t col,
                        VectorView<std::type_identity_t<T>> vector, ScalarOf<T> fill) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  if (shape.HasAtMostOneLine()) return;
  detail::RequireCol(shape, col);
  detail::RequireLengths(matrix, shape.cols);
  const std::size_t given = std::min<std::size_t>(vector.size(), shape.rows);
  for (std::size_t i = 0; i < given; ++i) matrix[i][col] = vector[i];
  for (std::size_t i = given; i < shape.rows; ++i) matrix[i][col] = fill;
}

#define QORVEX_INSTANTIATE(T)                                                                  \
  template TQorVector<T> ExtractMatrixRow(const TQorMatrix<T>&, std::uint32_t);                \
  template TQorVector<T> ExtractMatrixCol(const TQorMatrix<T>&, std::uint32_t);                \
  template void OverwriteMatrixRow(TQorMatrix<T>&, std::uint32_t, VectorView<T>, ScalarOf<T>); \
  template void OverwriteMatrixCol(TQorMatrix<T>&, std::uint32_t, VectorView<T>, ScalarOf<T>);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
