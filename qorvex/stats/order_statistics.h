#pragma once

/// @file
/// Median, mode, most frequent values, quartiles and deciles of a vector that is already sorted
/// ascending.
///
/// These routines never sort and never copy: a caller who needs several of them sorts once with
/// QSortVector. An unsorted vector is indexed as it stands, so (4, 1, 3, 2) has the "median" 2.
///
/// QSortVector puts NaN last, where the upper order statistics meet it; each NaN is a run of its
/// own. Interpolation beside an infinite element gives NaN where its weight is 0, else the
/// infinity.

#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The middle element, or the mean of the two in the middle. Int64 elements are added in int64,
/// wrapping, all others in extended precision. An empty vector raises EMathError with
/// rsVectorIsEmpty. For the six elements of at least 32 bits. O(1).
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended GetMedian(const TQorVector<T>& sorted);

/// True, with the mode, when one run of elements that SameFloat joins is longer than every other
/// and longer than one element, or when there is only one element. Otherwise false; the mode is
/// then -1.1E4932 when no value repeats, else the last value that led before the tie. A run's value
/// is its last element. An empty vector raises EMathError with rsVectorIsEmpty, the output
/// untouched. O(n).
[[nodiscard]] QORVEX_EXPORT bool GetMode(const TQorFloatVector& sorted, Extended& mode);

/// The values of the longest runs of at least two elements that SameFloat joins, in the vector's
/// order; empty when no value repeats. A run's value is its last element, but the first when the
/// run is the whole vector; one element is its own result. An empty vector raises EMathError with
/// rsVectorIsEmpty. O(n).
[[nodiscard]] QORVEX_EXPORT TQorFloatVector GetMostFrequent(const TQorFloatVector& sorted);

/// The first and third quartile: linear interpolation at the one-based positions n/4 + 1/2 and 3n/4
/// + 1/2 (method 5 of Hyndman and Fan 1996, "Sample quantiles in statistical packages"). Positions
/// are held in single precision, which keeps the fraction to 24 bits less those of the position. An
/// empty vector raises EMathError with rsVectorIsEmpty, the outputs untouched. O(1).
QORVEX_EXPORT void GetQuartiles(const TQorFloatVector& sorted, Extended& q1, Extended& q3);

/// The nine deciles, interpolated like the quartiles at the positions n i/10 + 1/2. A position
/// before the first element, which vectors of fewer than five have, gives the first element, as one
/// beyond the last gives the last. An empty vector raises EMathError with rsVectorIsEmpty, the
/// output untouched. O(1).
QORVEX_EXPORT void GetDeciles(const TQorFloatVector& sorted, std::span<Extended, 9> deciles);

}  // namespace qorvex::inline QorvexStatistics
