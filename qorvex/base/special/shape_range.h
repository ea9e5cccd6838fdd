#pragma once

/// @file
/// The shapes of gamma and beta distributions that can be computed.

#include "qorvex/base/element_types.h"

namespace qorvex::special {

/// @{
/// The shapes of gamma and beta distributions between which the methods of their tails hold and end
/// in sensible time.
inline constexpr Extended kSmallestShape = 1e-18L;
inline constexpr Extended kLargestShape = 1e15L;
/// @}

/// Whether the shape is below or above that range; NaN is neither.
constexpr bool IsShapeOutOfRange(Extended shape) {
  return shape < kSmallestShape || shape > kLargestShape;
}

}  // namespace qorvex::special
