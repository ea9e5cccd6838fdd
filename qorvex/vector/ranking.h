#pragma once

/// @file
/// Zero-based ranks of elements and values.
///
/// - The rank of a value is the first position in the sorted vector whose element equals the value,
///   so ties share the lowest rank: (10, 20, 20, 30) ascending has the ranks (0, 1, 1, 3).
/// - Integers and amounts are compared exactly, floating elements with SameFloat in their own
///   precision.
/// - NaN sorts last and equals nothing.
/// - No errors. Ranks are correct for up to 2^31 elements. For all element types.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @{
/// The rank of every element; 0 for NaN. n = 0 gives an empty result.
///
/// Costs a sort and 8 bytes of memory per element, or 16 on a processor without AVX2. For floating
/// elements O(n^2) if QorTolerance is 0.5 or more, because the elements that equal a value may then
/// not be contiguous.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorLIntVector Vector2RankVector(VectorView<T> vector, bool ascending);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TQorLIntVector Vector2RankVector(const Range& vector, bool ascending) {
  return Vector2RankVector<ElementOf<Range>>(vector, ascending);
}
/// @}

/// @{
/// The rank of the element at the index; -1 if the index is out of range or the element is NaN.
/// O(n), without a copy.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT std::int32_t Vector2Rank(VectorView<T> vector, std::uint32_t index,
                                                     bool ascending);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] std::int32_t Vector2Rank(const Range& vector, std::uint32_t index, bool ascending) {
  return Vector2Rank<ElementOf<Range>>(vector, index, ascending);
}
/// @}

/// @{
/// The rank of a value; -1 if no element equals it. O(n), without a copy.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT std::int32_t Vector2RankValue(VectorView<T> vector, ScalarOf<T> value,
                                                          bool ascending);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] std::int32_t Vector2RankValue(const Range& vector, ScalarOf<ElementOf<Range>> value,
                                            bool ascending) {
  return Vector2RankValue<ElementOf<Range>>(vector, value, ascending);
}
/// @}

}  // namespace qorvex::inline QorvexVector
