#pragma once

/// @file
/// Means of the middle of a vector that is already sorted ascending.
///
/// - A fraction that comes from a double differs from the decimal that was written: 20 *
///   (double)0.15 truncates to 2 elements, 20 * 0.15L to 3. Write fractions with the suffix L, or
///   parse them with Str2Float.
/// - Elements: the six types of at least 32 bits, summed in extended precision.
/// - NaN and infinite elements that are not trimmed enter the sum.
/// - Cost: O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The mean without the k = trunc(n * fraction) smallest and the k largest elements: the fraction
/// is cut from each tail.
///
/// In this order:
///
/// - fraction zero within QorTolerance: QorMean;
/// - SameFloat(fraction, 0.5): GetMedian;
/// - fraction outside [0, 0.5] or NaN: EMathError rsInvalidValue;
/// - n = 0: EMathError rsVectorIsEmpty;
/// - n = 1: the element.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended TrimmedMean(VectorView<T> sorted, Extended fraction);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended TrimmedMean(const Range& sorted, Extended fraction) {
  return TrimmedMean<ElementOf<Range>>(sorted, fraction);
}
/// @}

/// @{
/// The mean without k = trunc(n * fraction) div 2 elements at each end: the fraction is cut from
/// both tails together, and an odd count is rounded down.
///
/// In this order:
///
/// - fraction zero within QorTolerance: QorMean;
/// - SameFloat(fraction, 1): GetMedian;
/// - fraction outside [0, 1] or NaN: EMathError rsInvalidValue;
/// - n = 0: EMathError rsVectorIsEmpty;
/// - n = 1: the element.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended ExcelTrimmedMean(VectorView<T> sorted, Extended fraction);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended ExcelTrimmedMean(const Range& sorted, Extended fraction) {
  return ExcelTrimmedMean<ElementOf<Range>>(sorted, fraction);
}
/// @}

}  // namespace qorvex::inline QorvexStatistics
