#pragma once

/// @file
/// Rounding an extended value to an integer type.

#include <cmath>
#include <concepts>
#include <limits>

#include "qorvex/base/element_types.h"

namespace qorvex {

/// Rounds to the nearest integer, ties to even. What the target cannot hold, NaN included, gives
/// the target's smallest value: 0 for unsigned targets, and what the processor itself marks such a
/// conversion with for int32 and int64.
template <std::integral Int>
[[nodiscard]] inline Int RoundToInteger(Extended value) noexcept {
  // Both bounds are exact: the smallest value is 0 or a power of two, and the largest plus one is a
  // power of two.
  constexpr Extended lowest = static_cast<Extended>(std::numeric_limits<Int>::min());
  constexpr Extended beyond = static_cast<Extended>(std::numeric_limits<Int>::max()) + 1.0L;
  const Extended rounded = std::nearbyint(value);
  if (!(rounded >= lowest && rounded < beyond)) return std::numeric_limits<Int>::min();
  return static_cast<Int>(rounded);
}

}  // namespace qorvex
