#pragma once

/// @file
/// Frequency tables with classes of equal width, as the grouped routines take them.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The numbers of values that belong to no class of a frequency table.
struct OutsideClasses {
  std::uint64_t below = 0;         ///< less than the lower bound of the first class
  std::uint64_t above = 0;         ///< at or above the upper bound of the last class
  std::uint64_t not_a_number = 0;  ///< NaN
};

/// @{
/// The frequencies of `count` classes. Class i holds the values from lower + i * width up to, but
/// not including, lower + (i + 1) * width.
///
/// - A value that differs from a bound by no more than 4 units in the last place of its element
///   type counts as the bound. So 0.7 is in the eighth of the classes 0.1 wide, although seven
///   times the rounded 0.1 is more than the rounded 0.7. The units are those of the value or of
///   `lower`, whichever is larger.
/// - The first form fails if a value belongs to no class. The second one counts such values
///   instead.
/// - n = 0: all frequencies are 0.
/// - EMathError, in this order: rsInvalidClasses if `lower` is not finite, `width` is not finite
///   and positive, or `count` is 0; in the first form rsOutsideClasses. EOverflow if a frequency
///   exceeds 2^32 - 1. `outside` keeps its values after an error.
/// - For all numeric elements. O(n + count).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorLWordVector ClassFrequencies(VectorView<T> values, Extended lower,
                                                             Extended width, std::uint32_t count);
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorLWordVector ClassFrequencies(VectorView<T> values, Extended lower,
                                                             Extended width, std::uint32_t count,
                                                             OutsideClasses& outside);
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] TQorLWordVector ClassFrequencies(const Range& values, Extended lower, Extended width,
                                               std::uint32_t count) {
  return ClassFrequencies<ElementOf<Range>>(values, lower, width, count);
}
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] TQorLWordVector ClassFrequencies(const Range& values, Extended lower, Extended width,
                                               std::uint32_t count, OutsideClasses& outside) {
  return ClassFrequencies<ElementOf<Range>>(values, lower, width, count, outside);
}
/// @}

}  // namespace qorvex::inline QorvexStatistics
