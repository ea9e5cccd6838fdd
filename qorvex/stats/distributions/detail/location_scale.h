#pragma once

/// @file
/// Points relative to a location and a scale, in 128 bits.

#include "qorvex/base/elementary/detail/quotient.h"
#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex::distributions {

using elementary::Wide;

/// x / scale for scale > 0; relative error below 2^-98. Scales are often powers of two, which need
/// no division.
[[nodiscard]] inline Wide Ratio(const Wide& x, const Extended& scale) {
  const Wide divisor(scale);
  if (elementary::High(divisor.mantissa) == elementary::kTopBit)
    return ScaledBy(x, -divisor.exponent);
  return x.IsZero() ? x : QuickQuotient(x, divisor);
}

/// 1 / scale.
[[nodiscard]] inline Wide RateOf(const Extended& scale) {
  constexpr Wide one{elementary::UInt128{1} << 127, 0};
  return Ratio(one, scale);
}

/// (x - location) / scale.
[[nodiscard]] inline Wide Standardised(const Wide& x, const Extended& location,
                                       const Extended& scale) {
  return Ratio(x - Wide(location), scale);
}

/// The nearest extended number. EOverflow beyond the format.
[[nodiscard]] inline Extended CheckedNearest(const Wide& x) {
  const elementary::Binary80 bits = NearestBits(x);
  if (elementary::IsInfinity(bits)) throw EOverflow();
  return FromBits(bits);
}

/// location + z scale. EOverflow beyond the format.
[[nodiscard]] inline Extended PointAt(const Wide& z, const Extended& location,
                                      const Extended& scale) {
  return CheckedNearest(z * Wide(scale) + Wide(location));
}

}  // namespace qorvex::distributions
