#include "qorvex/stats/covariance_matrix.h"

#include <cstddef>
#include <limits>
#include <span>

#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/deviations.h"

namespace qorvex::inline QorvexPairStats {

using exact::Dyadic;
using exact::Rational;
using exact::detail::CorrelationOf;
using exact::detail::MeanOfDeviations;
using exact::detail::ScaledDeviations;

namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();

// The number of values in each column.
template <NumericElement T>
std::size_t RequireColumns(std::span<const VectorView<T>> columns, std::size_t least) {
  if (columns.empty()) RaiseMathError(rsMatrixIsEmpty);
  const std::size_t n = columns[0].size();
  for (const VectorView<T>& column : columns) {
    if (column.size() != n) RaiseMathError(rsSameDimensions);
  }
  if (n == 0) RaiseMathError(rsVectorIsEmpty);
  if (n < least) RaiseMathError(rsVectorG1);
  return n;
}

template <NumericElement T>
std::vector<ExactSum> SumsOf(std::span<const VectorView<T>> columns) {
  std::vector<ExactSum> sums(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) sums[i].Add<T>(columns[i]);
  return sums;
}

template <NumericElement T>
ExactSum Products(VectorView<T> x, VectorView<T> y) {
  ExactSum products;
  products.AddProduct<T>(x, y);
  return products;
}

// The symmetric matrix whose lower triangle is element(row, column), called row by row.
template <class Element>
TQorFloatMatrix Symmetric(std::size_t count, Element element) {
  auto matrix = TQorFloatMatrix::WithLength(count);
  for (TQorFloatVector& row : matrix) row = TQorFloatVector::ForOverwrite(count);
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j <= i; ++j) matrix[i][j] = matrix[j][i] = element(i, j);
  }
  return matrix;
}

}  // namespace

template <NumericElement T>
TQorFloatMatrix CovarianceMatrix(VectorView<VectorView<T>> columns, Estimate estimate) {
  const std::size_t n = RequireColumns<T>(columns, estimate == Estimate::kSample ? 2 : 1);
  const std::vector<ExactSum> sums = SumsOf<T>(columns);
  return Symmetric(columns.size(), [&](std::size_t i, std::size_t j) {
    if (!sums[i].IsFinite() || !sums[j].IsFinite()) return kNaN;
    return MeanOfDeviations(n, estimate, Products(columns[i], columns[j]), sums[i], sums[j])
        .Round();
  });
}

template <NumericElement T>
TQorFloatMatrix CorrelationMatrix(VectorView<VectorView<T>> columns) {
  const std::size_t n = RequireColumns<T>(columns, 2);
  const std::vector<ExactSum> sums = SumsOf<T>(columns);
  const auto deviations = [&](std::size_t i, std::size_t j) {
    return ScaledDeviations(n, Products(columns[i], columns[j]), sums[i], sums[j]);
  };
  std::vector<Dyadic> squares(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!sums[i].IsFinite()) continue;
    squares[i] = deviations(i, i);
    if (squares[i].Sign() == 0) RaiseMathError(rsSameValue);
  }
  return Symmetric(columns.size(), [&](std::size_t i, std::size_t j) -> Extended {
    if (!sums[i].IsFinite() || !sums[j].IsFinite()) return kNaN;
    return i == j ? 1 : CorrelationOf(squares[i], deviations(i, j), squares[j]);
  });
}

TQorFloatVector PackedUpperTriangle(const TQorFloatMatrix& matrix) {
  const std::size_t n = matrix.size();
  if (n == 0) RaiseMathError(rsMatrixIsEmpty);
  for (const TQorFloatVector& row : matrix) {
    if (row.size() != n) RaiseMathError(rsMatrixSqr);
  }
  auto triangle = TQorFloatVector::ForOverwrite(n * (n + 1) / 2);
  std::size_t next = 0;
  for (std::size_t column = 0; column < n; ++column) {
    for (std::size_t row = 0; row <= column; ++row) triangle[next++] = matrix[row][column];
  }
  return triangle;
}

#define QORVEX_INSTANTIATE(T)                                                     \
  template TQorFloatMatrix CovarianceMatrix(VectorView<VectorView<T>>, Estimate); \
  template TQorFloatMatrix CorrelationMatrix(VectorView<VectorView<T>>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexPairStats
