#pragma once

/// @file
/// Correlation by ranks.
///
/// - Only the order of the x and of the y matters, so infinities are values like others. Any NaN
///   gives NaN.
/// - Values are compared exactly, without tolerance; -0 equals +0.
/// - The counts are integers and the results are rounded once: the nearest 80-bit numbers. A
///   perfect correlation is exactly 1 or -1.
/// - EMathError, in this order: rsSameDimensions for different lengths; rsVectorIsEmpty; rsVectorG1
///   for one pair; without a NaN, rsSameValue if all x or all y are equal.
/// - For all numeric elements; x and y may differ in type. Amounts rank as their stored integers.
/// - Cost: O(n log n) time, 64 bytes of memory per pair.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexPairStats {

/// @{
/// Twice the rank of every value, counted from 1, where ties share the mean of their ranks: (10,
/// 20, 20, 30) has the doubled ranks (2, 5, 5, 8).
///
/// - Doubled, because then all of them are whole numbers.
/// - NaN sorts last and equals nothing.
/// - n = 0 gives an empty result. No errors. For all numeric elements. O(n log n).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorInt64Vector DoubledMidranks(VectorView<T> values);
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] TQorInt64Vector DoubledMidranks(const Range& values) {
  return DoubledMidranks<ElementOf<Range>>(values);
}
/// @}

/// @cond internal
namespace detail {

// The ranks of one variable of the pairs.
struct RankedVariable {
  TQorInt64Vector doubled_midranks;
  bool has_nan;
};
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT RankedVariable Ranked(VectorView<T> values);

// x and y must have the same length of at least 2.
[[nodiscard]] QORVEX_EXPORT Extended KendallTau(const RankedVariable& x, const RankedVariable& y);
[[nodiscard]] QORVEX_EXPORT Extended SpearmanRho(const RankedVariable& x, const RankedVariable& y);

QORVEX_EXPORT void RequirePairs(std::size_t count_x, std::size_t count_y);

}  // namespace detail
/// @endcond

/// @{
/// Kendall's tau with the correction for ties (tau-b): (C - D) / sqrt((P - Tx)(P - Ty)), where C of
/// the P pairs of points are in the same order by x and by y, D in opposite orders, Tx have equal x
/// and Ty equal y.
///
/// Source: Knight 1966, "A computer method for calculating Kendall's tau with ungrouped data".
[[nodiscard]] QORVEX_EXPORT Extended KendallTau(VectorView<Extended> x, VectorView<Extended> y);
template <ContiguousRange X, ContiguousRange Y>
requires NumericElement<ElementOf<X>> && NumericElement<ElementOf<Y>>
[[nodiscard]] Extended KendallTau(const X& x, const Y& y) {
  detail::RequirePairs(std::ranges::size(x), std::ranges::size(y));
  return detail::KendallTau(detail::Ranked<ElementOf<X>>(x), detail::Ranked<ElementOf<Y>>(y));
}
/// @}

/// @{
/// Spearman's rho: Pearson's correlation of the ranks, where ties share the mean of their ranks.
[[nodiscard]] QORVEX_EXPORT Extended SpearmanRho(VectorView<Extended> x, VectorView<Extended> y);
template <ContiguousRange X, ContiguousRange Y>
requires NumericElement<ElementOf<X>> && NumericElement<ElementOf<Y>>
[[nodiscard]] Extended SpearmanRho(const X& x, const Y& y) {
  detail::RequirePairs(std::ranges::size(x), std::ranges::size(y));
  return detail::SpearmanRho(detail::Ranked<ElementOf<X>>(x), detail::Ranked<ElementOf<Y>>(y));
}
/// @}

}  // namespace qorvex::inline QorvexPairStats
