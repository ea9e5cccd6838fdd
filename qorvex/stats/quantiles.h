#pragma once

/// @file
/// Quantiles by the nine definitions of Hyndman and Fan, and the median absolute deviation, of a
/// vector that is already sorted ascending.
///
/// These routines neither sort nor copy, and do not check the order. Sort once with QSortVector and
/// call as many as you need, or pass SortedVector(data) to one.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The definitions of a sample quantile by Hyndman and Fan (1996), "Sample quantiles in statistical
/// packages", by number and by meaning.
///
/// h is the one-based position of the quantile among the n sorted elements. Types 4 to 9
/// interpolate between the elements at both sides of h.
enum class QuantileType : std::uint8_t {
  k1 = 1,  ///< h = n p, rounded up.
  k2 = 2,  ///< h = n p, rounded up; the mean of elements h and h + 1 where n p is whole.
  k3 = 3,  ///< h = n p, rounded to the nearest whole number, ties to even.
  k4 = 4,  ///< h = n p.
  k5 = 5,  ///< h = n p + 1/2.
  k6 = 6,  ///< h = (n + 1) p.
  k7 = 7,  ///< h = (n - 1) p + 1. The default of R, and the inclusive quantiles of spreadsheets.
  k8 = 8,  ///< h = (n + 1/3) p + 1/3.
  k9 = 9,  ///< h = (n + 1/4) p + 3/8.

  kInverseDistribution = k1,       ///< The inverse of the empirical distribution function.
  kAveragedInverse = k2,           ///< The same, with the mean of both ends of its steps.
  kNearestEven = k3,               ///< The observation nearest to n p.
  kInterpolatedDistribution = k4,  ///< The empirical distribution function, interpolated.
  kStepMidpoints = k5,             ///< Interpolated at the midpoints of its steps.
  kMeanRank = k6,                  ///< Element k has the mean probability k / (n + 1).
  kModalRank = k7,                 ///< Element k has its most likely probability.
  kMedianRank = k8,                ///< Nearly unbiased for the median of any distribution.
  kNormalRank = k9,                ///< Nearly unbiased for samples of a normal distribution.
  kClassic = k5,                   ///< The type of GetQuartiles and GetDeciles.
};

/// @{
/// The quantile of probability p: p = 0.25 is the first quartile.
///
/// - A position within 4 units in the last place of a multiple of 1/2 is that multiple: the product
///   of 10 and 0.1L is a little more than 1, and the types 1 to 3 would give another element.
/// - A position before the first element gives the first, one after the last gives the last.
/// - Interpolated values are the nearest 80-bit numbers for the position, which is rounded. Between
///   equal elements, and at an element, the result is the element.
/// - n = 1: the element.
/// - NaN sorts last and gives NaN where it takes part. Between -infinity and infinity the result is
///   NaN, between a finite element and an infinite one the infinity.
/// - EMathError, in this order: rsVectorIsEmpty; rsValue01Inc unless 0 <= p <= 1; rsInvalidValue for
///   a type outside 1 to 9.
/// - For all numeric elements. O(1).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended GetQuantile(VectorView<T> sorted, Extended p,
                                                 QuantileType type = QuantileType::k7);
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] Extended GetQuantile(const Range& sorted, Extended p,
                                   QuantileType type = QuantileType::k7) {
  return GetQuantile<ElementOf<Range>>(sorted, p, type);
}
/// @}

/// MedianAbsoluteDeviation times this number estimates the standard deviation of a normal
/// distribution: 1 / its third quartile.
inline constexpr Extended kNormalMedianDeviation = 1.48260221850560186054707652936042343L;

/// @{
/// The median of the distances |x - m| from the median m: half of the values are no further from
/// the median.
///
/// - The median and the distances are rounded to extended precision; so is the mean of the two
///   middle distances for even n. They are not scaled: see kNormalMedianDeviation.
/// - n = 1: 0.
/// - Any NaN, or an infinite median: NaN. Other infinite values are infinitely far away.
/// - n = 0: EMathError rsVectorIsEmpty.
/// - For all numeric elements. O(log n), without sorting the distances.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended MedianAbsoluteDeviation(VectorView<T> sorted);
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] Extended MedianAbsoluteDeviation(const Range& sorted) {
  return MedianAbsoluteDeviation<ElementOf<Range>>(sorted);
}
/// @}

}  // namespace qorvex::inline QorvexStatistics
