#pragma once

/// @file
/// The smallest and largest elements of a vector.
///
/// Comparison is exact, and the first of equal extremes wins. Every comparison with NaN is false: a
/// NaN first element stays the result, later ones are passed over. Infinities compare as usual. An
/// empty vector raises EMathError with rsVectorIsEmpty. O(n).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// The smallest element. For all elements.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT T MinVector(const TQorVector<T>& vector);

/// The largest element. For all elements.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT T MaxVector(const TQorVector<T>& vector);

/// Both extremes, the first position of each, and whether each occurs exactly once. The outputs are
/// untouched when the vector is empty; positions are exact for vectors of up to 2^32 elements. For
/// all elements.
template <AnyElement T>
QORVEX_EXPORT void MinMaxVector(const TQorVector<T>& vector, T& min_value, T& max_value,
                                std::uint32_t& min_index, std::uint32_t& max_index,
                                bool& min_unique, bool& max_unique);

}  // namespace qorvex::inline QorvexVector
