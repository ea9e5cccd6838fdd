#pragma once

/// @file
/// Rounding to integers.

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

#include "qorvex/base/element_types.h"

/// @cond internal
namespace qorvex::inline QorvexGlobals::detail {
// The product as RoundProduct needs it from 2^62 on; `product` is value * factor rounded.
[[nodiscard]] inline Extended RoundedLargeProduct(Extended value, Extended factor,
                                                  Extended product) noexcept {
  if (!(std::fabs(product) < 0x1p63L)) return product;
  // The products of both parts of the value are exact, and so is the rounding error of the sum.
  const auto leading = static_cast<Extended>(static_cast<float>(value));
  const Extended lost = (value - leading) * factor - (product - leading * factor);
  const Extended below = std::floor(product);
  if (product == below || lost == 0) return product;
  return lost > 0 ? below + 1 : below;
}
}  // namespace qorvex::inline QorvexGlobals::detail
/// @endcond

namespace qorvex {

/// Rounds to the nearest integer, ties to even. NaN and values that Int cannot hold give the
/// smallest value of Int: 0 for unsigned types, and for int32 and int64 the processor's
/// integer-indefinite value.
template <std::integral Int>
[[nodiscard]] inline Int RoundToInteger(Extended value) noexcept {
  static_assert(std::in_range<std::int64_t>(std::numeric_limits<Int>::max()));
  constexpr Int smallest = std::numeric_limits<Int>::min();
  // The range of int64; 2^63 - 0.5 is a tie that would round to 2^63.
  if (!(value >= -0x1p63L && value < 0x1p63L - 0.5L)) return smallest;
  const std::int64_t rounded = std::llrint(value);
  return std::in_range<Int>(rounded) ? static_cast<Int>(rounded) : smallest;
}

/// RoundToInteger(value * factor), for factors up to 2^24. The product is rounded to extended
/// precision first. From 2^62 on, where that leaves a resolution of one half, a half is rounded in
/// the direction of the exact product.
template <std::integral Int>
[[nodiscard]] inline Int RoundProduct(Extended value, std::int64_t factor) noexcept {
  const auto wide_factor = static_cast<Extended>(factor);
  const Extended product = value * wide_factor;
  if (std::fabs(product) < 0x1p62L) {
    const std::int64_t rounded = std::llrint(product);
    return std::in_range<Int>(rounded) ? static_cast<Int>(rounded)
                                       : std::numeric_limits<Int>::min();
  }
  return RoundToInteger<Int>(
      QorvexGlobals::detail::RoundedLargeProduct(value, wide_factor, product));
}

/// dividend / divisor, rounded to the nearest integer, ties to even. For divisors from 1 to 2^62.
[[nodiscard]] constexpr std::int64_t DivideHalfEven(std::int64_t dividend,
                                                    std::int64_t divisor) noexcept {
  const std::int64_t quotient = dividend / divisor;
  const std::int64_t remainder = dividend % divisor;
  const std::int64_t twice = remainder < 0 ? -2 * remainder : 2 * remainder;
  // A tie counts as more than a half if the quotient is odd.
  const bool away_from_zero = twice + (quotient & 1) > divisor;
  return quotient + (away_from_zero ? (dividend < 0 ? -1 : 1) : 0);
}

}  // namespace qorvex
