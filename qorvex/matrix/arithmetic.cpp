#include "qorvex/matrix/arithmetic.h"

#include <algorithm>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/vector/detail/element_arithmetic.h"

namespace qorvex::inline QorvexMatrix {

namespace {

using QorvexVector::detail::Difference;
using QorvexVector::detail::Product;
using QorvexVector::detail::Sum;

// Requires that both matrices have the same shape, and returns it.
template <class T>
detail::Shape CommonShape(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const detail::Shape shape = detail::ShapeOf(a, false);
  detail::RequireElements(shape);
  if (!MatricesSameDimensions(a, b)) RaiseMathError(rsSameDimensions);
  detail::RequireLengths(a, shape.cols);
  detail::RequireLengths(b, shape.cols);
  return shape;
}

// Writes operation(a[i][j], b[i][j]) to result, which may be a itself.
template <class T>
void Combine(const TQorMatrix<T>& a, const TQorMatrix<T>& b, detail::Shape shape,
             TQorMatrix<T>& result, T (*operation)(T, T)) {
  for (std::size_t i = 0; i < shape.rows; ++i) {
    const T* const row = a[i].data();
    std::transform(row, row + shape.cols, b[i].data(), result[i].data(), operation);
  }
}

template <class T>
TQorMatrix<T> Combined(const TQorMatrix<T>& a, const TQorMatrix<T>& b, T (*operation)(T, T)) {
  const detail::Shape shape = CommonShape(a, b);
  auto result = detail::NewMatrixForOverwrite<T>(shape.rows, shape.cols);
  Combine(a, b, shape, result, operation);
  return result;
}

}  // namespace

template <AdditiveElement T>
TQorMatrix<T> AddMatrices(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  return Combined(a, b, Sum<T>);
}

template <AdditiveElement T>
TQorMatrix<T> SubtractMatrices(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  return Combined(a, b, Difference<T>);
}

template <AdditiveElement T>
void AddToMatrix(TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  Combine(a, b, CommonShape(a, b), a, Sum<T>);
}

template <AdditiveElement T>
void SubtractFromMatrix(TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  Combine(a, b, CommonShape(a, b), a, Difference<T>);
}

template <AdditiveElement T>
TQorMatrix<T> MultiplyMatrixByConst(const TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> factor) {
  detail::RequireRows(matrix);
  auto result = TQorMatrix<T>::WithLength(matrix.size());
  std::ranges::transform(matrix, result.begin(), [=](const TQorVector<T>& row) {
    auto product = TQorVector<T>::ForOverwrite(row.size());
    std::ranges::transform(row, product.begin(), [=](T x) { return Product(x, factor); });
    return product;
  });
  return result;
}

template <AdditiveElement T>
void MultiplyMatrixByConst2(TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> factor) {
  detail::RequireRows(matrix);
  for (TQorVector<T>& row : matrix) {
    for (T& x : row) x = Product(x, factor);
  }
}

#define QORVEX_INSTANTIATE(T)                                                                \
  template TQorMatrix<T> AddMatrices(const TQorMatrix<T>&, const TQorMatrix<T>&);            \
  template TQorMatrix<T> SubtractMatrices(const TQorMatrix<T>&, const TQorMatrix<T>&);       \
  template void AddToMatrix(TQorMatrix<T>&, const TQorMatrix<T>&);                           \
  template void SubtractFromMatrix(TQorMatrix<T>&, const TQorMatrix<T>&);                    \
  template TQorMatrix<T> MultiplyMatrixByConst(const TQorMatrix<T>&, ScalarOf<FactorOf<T>>); \
  template void MultiplyMatrixByConst2(TQorMatrix<T>&, ScalarOf<FactorOf<T>>);
QORVEX_FOR_ADDITIVE_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
