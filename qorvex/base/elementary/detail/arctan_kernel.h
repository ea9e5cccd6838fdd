#pragma once

// The arc tangent of a quotient of two positive numbers.

#include <algorithm>

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/arc_pieces.h"
#include "qorvex/base/elementary/detail/quotient.h"

namespace qorvex::elementary {

/// atan t for 0 <= t < 1; relative error below 2^-98.
[[gnu::always_inline]] inline Wide SmallArcTan(const Wide& t) {
  // t^2 at scale 2^128; below 2^-128 it does not matter.
  const std::int64_t shift = std::min<std::int64_t>(-2 * t.exponent - 2, 127);
  const UInt128 square = MultiplyHigh(t.mantissa, t.mantissa) >> shift;
  return NormalisedWide(MultiplyHigh(t.mantissa, ArcTanQuotient(square)), t.exponent + 1);
}

/// pi/2 - a for a number 0 <= a < pi/2.
inline Wide ComplementOf(const Wide& a) {
  const std::int64_t shift = std::min<std::int64_t>(-a.exponent, 127);
  return NormalisedWide(kHalfPi - (a.mantissa >> shift), 0);
}

}  // namespace qorvex::elementary
