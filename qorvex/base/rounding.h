#pragma once

/// @file
/// Rounding to integers.

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

#include "qorvex/base/element_types.h"

namespace qorvex {

/// Rounds to the nearest integer, ties to even. What the target cannot hold, NaN included, gives
/// the target's smallest value: 0 for unsigned targets, and what the processor itself marks such a
/// conversion with for int32 and int64.
template <std::integral Int>
[[nodiscard]] inline Int RoundToInteger(Extended value) noexcept {
  static_assert(std::in_range<std::int64_t>(std::numeric_limits<Int>::max()));
  constexpr Int smallest = std::numeric_limits<Int>::min();
  // What int64 holds; the half below 2^63 is a tie that rounds up to it.
  if (!(value >= -0x1p63L && value < 0x1p63L - 0.5L)) return smallest;
  const std::int64_t rounded = std::llrint(value);
  return std::in_range<Int>(rounded) ? static_cast<Int>(rounded) : smallest;
}

/// The nearest integer to a quotient, ties to even. For a divisor from 1 to 2^62.
[[nodiscard]] constexpr std::int64_t DivideHalfEven(std::int64_t dividend,
                                                    std::int64_t divisor) noexcept {
  const std::int64_t quotient = dividend / divisor;
  const std::int64_t remainder = dividend % divisor;
  const std::int64_t twice = remainder < 0 ? -2 * remainder : 2 * remainder;
  const bool away_from_zero = twice > divisor || (twice == divisor && quotient % 2 != 0);
  if (!away_from_zero) return quotient;
  return dividend < 0 ? quotient - 1 : quotient + 1;
}

}  // namespace qorvex
