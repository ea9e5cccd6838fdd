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

/// The smallest element.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT T MinVector(const TQorVector<T>& vector);

/// The largest element.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT T MaxVector(const TQorVector<T>& vector);

/// Both extremes, the first position of each, and whether each occurs exactly once. If the vector
/// is empty, the outputs are not changed. Positions are correct for up to 2^32 elements.
template <AnyElement T>
QORVEX_EXPORT void MinMaxVector(const TQorVector<T>& vector, T& min_value, T& max_value,
                                std::uint32_t& min_index, std::uint32_t& max_index,
                                bool& min_unique, bool& max_unique);

}  // namespace qorvex::inline QorvexVector
