#pragma once

/// @file
/// Means of the middle of a vector that is already sorted ascending.
///
/// A fraction that comes from a double is not the decimal that was written: 20 * (double)0.15
/// truncates to 2 elements, 20 * 0.15L to 3. Write fractions with the suffix L, or parse them with
/// Str2Float.
///
/// NaN and infinite elements that are not trimmed go into the sum.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The mean without the k = trunc(n * fraction) smallest and the k largest elements: the fraction
/// is cut from each tail.
///
/// A fraction that is zero within QorTolerance gives QorMean, one that SameFloat takes for 0.5
/// gives GetMedian. EMathError: rsInvalidValue when the fraction is outside [0, 0.5] or NaN;
/// rsVectorIsEmpty. One element is its own mean. The elements are summed in extended precision. For
/// the six elements of at least 32 bits. O(n).
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended TrimmedMean(const TQorVector<T>& sorted, Extended fraction);

/// The mean without k elements at each end, for k half of trunc(n * fraction), rounded down: the
/// fraction is that cut from both tails together, and an odd count trims the smaller half.
///
/// A fraction that is zero within QorTolerance gives QorMean, one that SameFloat takes for 1 gives
/// GetMedian. EMathError: rsInvalidValue when the fraction is outside [0, 1] or NaN;
/// rsVectorIsEmpty. One element is its own mean. For the six elements of at least 32 bits. O(n).
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended ExcelTrimmedMean(const TQorVector<T>& sorted,
                                                      Extended fraction);

}  // namespace qorvex::inline QorvexStatistics
