#include "qorvex/matrix/vector_product.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "qorvex/matrix/detail/checks.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// Sums that are computed side by side, since each addition has to wait for the one before.
constexpr std::size_t kSums = 4;

// The sums of element(k)[c] * factors[k] for k ascending and each c.
template <FloatElement T, class Element>
std::array<T, kSums> SumsOfProducts(VectorView<T> factors, Element element) {
  T sum0 = 0, sum1 = 0, sum2 = 0, sum3 = 0;
  const auto add = [](T& sum, T x, Extended factor) {
    sum = static_cast<T>(static_cast<Extended>(sum) + static_cast<Extended>(x) * factor);
  };
  for (std::size_t k = 0; k < factors.size(); ++k) {
    const auto factor = static_cast<Extended>(factors[k]);
    add(sum0, element(k, 0), factor);
    add(sum1, element(k, 1), factor);
    add(sum2, element(k, 2), factor);
    add(sum3, element(k, 3), factor);
  }
  return {sum0, sum1, sum2, sum3};
}

template <class T>
detail::Shape RequireFactor(const TQorMatrix<T>& matrix, std::size_t length,
                            std::uint32_t detail::Shape::*dimension) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  detail::RequireRectangular(shape);
  detail::RequireRows(matrix);
  if (length != shape.*dimension) RaiseMathError(rsMatrixMult);
  detail::RequireLengths(matrix, shape.cols);
  return shape;
}

}  // namespace

template <FloatElement T>
TQorVector<T> MultiplyMatrixByVector(const TQorMatrix<T>& matrix,
                                     VectorView<std::type_identity_t<T>> vector) {
  RequireFactor(matrix, vector.size(), &detail::Shape::cols);
  const std::size_t rows = matrix.size();
  auto product = TQorVector<T>::ForOverwrite(rows);
  for (std::size_t first = 0; first < rows; first += kSums) {
    // Rows beyond the last are computed as the last, and ignored.
    std::array<const T*, kSums> row;
    for (std::size_t c = 0; c < kSums; ++c) row[c] = matrix[std::min(first + c, rows - 1)].data();
    const auto sums =
        SumsOfProducts<T>(vector, [&](std::size_t k, std::size_t c) { return row[c][k]; });
    std::copy_n(sums.begin(), std::min(kSums, rows - first), &product[first]);
  }
  return product;
}

template <FloatElement T>
TQorVector<T> MultiplyVectorByMatrix(VectorView<std::type_identity_t<T>> vector,
                                     const TQorMatrix<T>& matrix) {
  const std::size_t cols = RequireFactor(matrix, vector.size(), &detail::Shape::rows).cols;
  auto product = TQorVector<T>::ForOverwrite(cols);
  for (std::size_t first = 0; first < cols; first += kSums) {
    std::array<std::size_t, kSums> col;
    for (std::size_t c = 0; c < kSums; ++c) col[c] = std::min(first + c, cols - 1);
    const auto sums = SumsOfProducts<T>(
        vector, [&](std::size_t k, std::size_t c) { return matrix[k].data()[col[c]]; });
    std::copy_n(sums.begin(), std::min(kSums, cols - first), &product[first]);
  }
  return product;
}

#define QORVEX_INSTANTIATE(T)                                                         \
  template TQorVector<T> MultiplyMatrixByVector(const TQorMatrix<T>&, VectorView<T>); \
  template TQorVector<T> MultiplyVectorByMatrix(VectorView<T>, const TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
