#pragma once

/// @file
/// The smallest and largest elements of a vector.
///
/// - Comparisons are exact. Of equal extremes the first one counts.
/// - n = 0: EMathError with rsVectorIsEmpty.
/// - NaN: if the first element is NaN, it is the result; any other NaN is ignored.
/// - O(n). For all element types.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @{
/// The smallest element.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT T MinVector(VectorView<T> vector);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] ElementOf<Range> MinVector(const Range& vector) {
  return MinVector<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// The largest element.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT T MaxVector(VectorView<T> vector);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] ElementOf<Range> MaxVector(const Range& vector) {
  return MaxVector<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// Both extremes, the first position of each, and whether each occurs exactly once. If the vector
/// is empty, the outputs are not changed. Positions are correct for up to 2^32 elements.
template <AnyElement T>
QORVEX_EXPORT void MinMaxVector(VectorView<T> vector, T& min_value, T& max_value,
                                std::uint32_t& min_index, std::uint32_t& max_index,
                                bool& min_unique, bool& max_unique);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
void MinMaxVector(const Range& vector, ElementOf<Range>& min_value, ElementOf<Range>& max_value,
                  std::uint32_t& min_index, std::uint32_t& max_index, bool& min_unique,
                  bool& max_unique) {
  MinMaxVector<ElementOf<Range>>(vector, min_value, max_value, min_index, max_index, min_unique,
                                 max_unique);
}
/// @}

}  // namespace qorvex::inline QorvexVector
