#pragma once

// The arc tangent of a quotient of two positive numbers.

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/arc_pieces.h"
#include "qorvex/base/elementary/detail/quotient.h"

namespace qorvex::elementary {

/// atan t for t in (0, 1); relative error below 2^-97.
inline Wide SmallArcTan(const Wide& t) {
  const UInt128 square = MultiplyHigh(t.mantissa, t.mantissa);
  const UInt128 quotient = ArcTanQuotient(ScaledDown(square, -2 * t.exponent - 2));
  return NormalisedTop(MultiplyHigh(t.mantissa, quotient), t.exponent + 1);
}

/// pi/2 - atan t for t in [0, 1) at scale 2^128; relative error below 2^-97, that of t included.
inline Wide ComplementOfArcTan(UInt128 t) {
  return NormalisedTop(kHalfPi - MultiplyHigh(t, ArcTanQuotient(MultiplyHigh(t, t))), 0);
}

}  // namespace qorvex::elementary
