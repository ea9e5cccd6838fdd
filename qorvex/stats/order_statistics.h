#pragma once

/// @file
/// Median, mode, most frequent values, quartiles and deciles of a vector that is already sorted
/// ascending.
///
/// - These routines neither sort nor copy; sort once with QSortVector and call as many as you need,
///   or pass SortedVector(data) to one. They do not check the order either: the "median" of (4, 1,
///   3, 2) is 2.
/// - n = 0: EMathError rsVectorIsEmpty, and the outputs keep their values.
/// - NaN: QSortVector puts it last, so it affects the upper order statistics. Each NaN forms its
///   own run.
/// - Infinity: interpolation next to an infinite element gives NaN if the weight of that element is
///   0, otherwise the infinity.

#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The median: the middle element, or the mean of the two middle ones.
///
/// - Elements: the six types of at least 32 bits. The two middle elements are added in extended
///   precision, except int64 elements, whose sum wraps around in int64.
/// - Cost: O(1).
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended GetMedian(VectorView<T> sorted);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended GetMedian(const Range& sorted) {
  return GetMedian<ElementOf<Range>>(sorted);
}
/// @}

/// Finds the mode, the value that occurs most often. Neighbours that SameFloat finds the same form
/// a run, whose value is its last element.
///
/// - True, with the mode: one run is longer than every other and longer than one element, or n = 1.
/// - False: no value repeats, and `mode` becomes -1.1E4932; or several runs are longest, and `mode`
///   becomes the value of the first of the longest runs.
/// - Cost: O(n).
[[nodiscard]] QORVEX_EXPORT bool GetMode(VectorView<Extended> sorted, Extended& mode);

/// The values of all longest runs of at least two elements, in the order of the vector. Runs are
/// those of GetMode.
///
/// - Empty if no value repeats. One element is its own result.
/// - If one run is the whole vector, its value is the first element instead of the last.
/// - Cost: O(n).
[[nodiscard]] QORVEX_EXPORT TQorFloatVector GetMostFrequent(VectorView<Extended> sorted);

/// The first and third quartile, by linear interpolation at the one-based positions n/4 + 1/2 and
/// 3n/4 + 1/2: method 5 of Hyndman and Fan (1996), "Sample quantiles in statistical packages".
///
/// - n = 1: both are the element.
/// - Positions are held in single precision: a fraction keeps the bits that the whole part leaves
///   of 24.
/// - Cost: O(1).
QORVEX_EXPORT void GetQuartiles(VectorView<Extended> sorted, Extended& q1, Extended& q3);

/// The nine deciles, interpolated like the quartiles at the positions n i/10 + 1/2.
///
/// - A position before the first element, which occurs for n < 5, gives the first element; one
///   beyond the last gives the last.
/// - Cost: O(1).
QORVEX_EXPORT void GetDeciles(VectorView<Extended> sorted, std::span<Extended, 9> deciles);

}  // namespace qorvex::inline QorvexStatistics
