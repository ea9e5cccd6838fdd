#include "qorvex/matrix/row_major.h"

#include <algorithm>

#include "qorvex/matrix/detail/checks.h"

namespace qorvex::inline QorvexMatrix {

template <AnyElement T>
TQorMatrix<T> MatrixFromRowMajor(VectorView<T> elements, WholeNumber<std::size_t> cols) {
  if (elements.empty()) return {};
  if (cols == 0 || elements.size() % cols != 0) RaiseMathError(rsMatrixRect);
  auto matrix = TQorMatrix<T>::WithLength(elements.size() / cols);
  for (std::size_t i = 0; i < matrix.size(); ++i) {
    matrix[i] = TQorVector<T>(elements.subspan(i * cols, cols));
  }
  return matrix;
}

template <AnyElement T>
TQorVector<T> MatrixToRowMajor(const TQorMatrix<T>& matrix) {
  if (matrix.empty()) return {};
  if (!MatrixIsRectangular(matrix)) RaiseMathError(rsMatrixRect);
  auto elements = TQorVector<T>::ForOverwrite(matrix.size() * matrix[0].size());
  T* next = elements.data();
  for (const TQorVector<T>& row : matrix) next = std::ranges::copy(row, next).out;
  return elements;
}

#define QORVEX_INSTANTIATE(T)                                                         \
  template TQorMatrix<T> MatrixFromRowMajor(VectorView<T>, WholeNumber<std::size_t>); \
  template TQorVector<T> MatrixToRowMajor(const TQorMatrix<T>&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
