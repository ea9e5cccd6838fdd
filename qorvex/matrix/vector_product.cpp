#include "qorvex/matrix/vector_product.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <vector>

#include "qorvex/matrix/detail/checks.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// The rows of the matrix. Requires that its dimension fits a vector of this length.
template <FloatElement T>
std::vector<const T*> RowsOfFactor(const TQorMatrix<T>& matrix, std::size_t length,
                                   std::uint32_t detail::Shape::*dimension) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  detail::RequireRectangular(shape);
  detail::RequireRows(matrix);
  if (length != shape.*dimension) RaiseMathError(rsMatrixMult);
  detail::RequireLengths(matrix, shape.cols);
  std::vector<const T*> rows;
  rows.reserve(matrix.size());
  for (const TQorVector<T>& row : matrix) rows.push_back(row.data());
  return rows;
}

// Computes sums[i], the sum of element(k, i) * factors[k] in ascending order of k, for kCount
// consecutive i from `first` on.
template <std::size_t kCount, FloatElement T, class Element>
void AddProducts(T* sums, VectorView<T> factors, std::size_t first, Element element) {
  std::array<T, kCount> partial = {};
  for (std::size_t k = 0; k < factors.size(); ++k) {
    const auto factor = static_cast<Extended>(factors[k]);
    for (std::size_t i = 0; i < kCount; ++i) {
      partial[i] = static_cast<T>(static_cast<Extended>(partial[i]) +
                                  static_cast<Extended>(element(k, first + i)) * factor);
    }
  }
  std::ranges::copy(partial, sums + first);
}

// The sums for all i below count. Several are computed side by side, since each addition has to
// wait for the one before. Those of extended elements stay in registers, of which there are eight.
template <FloatElement T, class Element>
TQorVector<T> SumsOfProducts(std::size_t count, VectorView<T> factors, Element element) {
  constexpr std::size_t kGroup = std::same_as<T, Extended> ? 4 : 8;
  auto sums = TQorVector<T>::ForOverwrite(count);
  if (count < kGroup) {
    for (std::size_t i = 0; i < count; ++i) AddProducts<1>(sums.data(), factors, i, element);
  } else {
    // The last group may overlap the one before.
    for (std::size_t i = 0; i < count; i += kGroup) {
      AddProducts<kGroup>(sums.data(), factors, std::min(i, count - kGroup), element);
    }
  }
  return sums;
}

}  // namespace

template <FloatElement T>
TQorVector<T> MultiplyMatrixByVector(const TQorMatrix<T>& matrix,
                                     VectorView<std::type_identity_t<T>> vector) {
  const auto rows = RowsOfFactor(matrix, vector.size(), &detail::Shape::cols);
  return SumsOfProducts<T>(rows.size(), vector,
                           [&](std::size_t k, std::size_t i) { return rows[i][k]; });
}

template <FloatElement T>
TQorVector<T> MultiplyVectorByMatrix(VectorView<std::type_identity_t<T>> vector,
                                     const TQorMatrix<T>& matrix) {
  const auto rows = RowsOfFactor(matrix, vector.size(), &detail::Shape::rows);
  return SumsOfProducts<T>(detail::ShapeOf(matrix, false).cols, vector,
                           [&](std::size_t k, std::size_t j) { return rows[k][j]; });
}

#define QORVEX_INSTANTIATE(T)                                                         \
  template TQorVector<T> MultiplyMatrixByVector(const TQorMatrix<T>&, VectorView<T>); \
  template TQorVector<T> MultiplyVectorByMatrix(VectorView<T>, const TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
