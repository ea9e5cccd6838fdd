#pragma once

// Sums of integers in int64, which wrap around.

#include <cstddef>
#include <cstdint>
#include <span>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexVector::detail {

template <IntegerElement T>
[[nodiscard]] std::int64_t IntegerSum(std::span<const T> values) noexcept;

// The sums of products and of squares in the width of the elements. Both spans have the same size.
template <IntegerElement T>
[[nodiscard]] std::int64_t IntegerProductSum(std::span<const T> a, std::span<const T> b) noexcept;

// The sum of squared differences in the width of the elements.
template <IntegerElement T>
[[nodiscard]] std::int64_t IntegerSquaredDifferenceSum(std::span<const T> a,
                                                       std::span<const T> b) noexcept;

__extension__ typedef __int128 Int128;

// A sum that does not wrap around.
[[nodiscard]] Int128 ExactIntegerSum(std::span<const std::int64_t> values) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
