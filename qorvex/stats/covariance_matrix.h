#pragma once

/// @file
/// The covariances and correlations of several variables.
///
/// - A variable is a column of values: CovarianceMatrix(std::vector{x, y, z}), where x, y and z are
///   vectors, or any contiguous range of contiguous ranges. A matrix counts as the range of its
///   rows, so transpose one whose rows are the observations.
/// - Every figure is the nearest 80-bit number. The result is symmetric.
/// - NaN or an infinity in a column gives NaN in its row and column.
/// - EMathError, in this order: rsMatrixIsEmpty for no columns; rsSameDimensions for columns of
///   different lengths; rsVectorIsEmpty for no values.
/// - For all numeric elements. The stored integers of amounts have the same correlations, and
///   covariances in units of theirs.
/// - Cost: O(n p^2) for p columns of n values.

#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/estimate.h"

namespace qorvex::inline QorvexPairStats {

/// @cond internal
namespace detail {

template <class Columns>
using ElementOfColumns = ElementOf<ElementOf<Columns>>;

template <class T, class Columns>
std::vector<VectorView<T>> ViewsOf(const Columns& columns) {
  return std::vector<VectorView<T>>(std::ranges::begin(columns), std::ranges::end(columns));
}

}  // namespace detail
/// @endcond

/// @{
/// The covariance of columns i and j at (i, j), and the variances on the diagonal: the sums of
/// products of deviations from the means, divided by n - 1 or, for the population, by n.
///
/// After the common errors: rsVectorG1 for samples of one value.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix CovarianceMatrix(VectorView<VectorView<T>> columns,
                                                             Estimate estimate = Estimate::kSample);
template <ContiguousRange Columns>
requires NumericElement<detail::ElementOfColumns<Columns>>
[[nodiscard]] TQorFloatMatrix CovarianceMatrix(const Columns& columns,
                                               Estimate estimate = Estimate::kSample) {
  using T = detail::ElementOfColumns<Columns>;
  return CovarianceMatrix<T>(VectorView<VectorView<T>>(detail::ViewsOf<T>(columns)), estimate);
}
/// @}

/// @{
/// Pearson's correlation of columns i and j at (i, j), and 1 on the diagonal. Linearly dependent
/// columns have exactly 1 or -1.
///
/// After the common errors: rsVectorG1 for one value; rsSameValue if the values of a column are all
/// equal.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix CorrelationMatrix(VectorView<VectorView<T>> columns);
template <ContiguousRange Columns>
requires NumericElement<detail::ElementOfColumns<Columns>>
[[nodiscard]] TQorFloatMatrix CorrelationMatrix(const Columns& columns) {
  using T = detail::ElementOfColumns<Columns>;
  return CorrelationMatrix<T>(VectorView<VectorView<T>>(detail::ViewsOf<T>(columns)));
}
/// @}

/// The upper triangle of a symmetric matrix, packed by columns: (1,1), (1,2), (2,2), (1,3) and so
/// on, as Random_MVNorm takes it.
///
/// EMathError: rsMatrixIsEmpty; rsMatrixSqr unless every row has as many elements as there are
/// rows.
[[nodiscard]] QORVEX_EXPORT TQorFloatVector PackedUpperTriangle(const TQorFloatMatrix& matrix);

}  // namespace qorvex::inline QorvexPairStats
