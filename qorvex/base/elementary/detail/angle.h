#pragma once

// An angle of any size as a quadrant and an angle in [0, pi/4].

#include "qorvex/base/elementary/detail/quadrants.h"

namespace qorvex::elementary {

/// x = quadrant pi/2 + r, where r lies in [-pi/4, pi/4].
struct Angle {
  unsigned quadrant;
  bool negative;  // the sign of r
  UInt128 r;      // |r| at scale 2^127; error below 2^-123
};

/// pi/2 at scale 2^127.
inline constexpr UInt128 kHalfPi = Join(0xc90fdaa22168c234, 0xc4c6628b80dc1cd1);

/// Positive numbers up to pi/4 are their own reduction.
constexpr bool IsReduced(Normalised x) {
  return x.exponent < -1 || (x.exponent == -1 && x.significand <= High(kHalfPi));
}

/// For 2^-64 <= x < infinity.
[[gnu::always_inline]] inline Angle AngleOf(Normalised x) {
  if (IsReduced(x)) return {0, false, Join(x.significand, 0) >> -x.exponent};
  const Quadrants<3> quadrants = QuadrantsOf<3>(x);
  const UInt128 r_125 = MultiplyHigh(Join(quadrants.fraction[0], quadrants.fraction[1]), kHalfPi);
  const UInt128 r_126 = r_125 + r_125;
  return {quadrants.quadrant, quadrants.negative, r_126 + r_126};
}

/// |r| with all leading bits, for any x > 0. Relative error below 2^-112.
Wide SmallAngleOf(Normalised x);

/// The same for second stages; relative error below 2^-230.
Wide256 Angle256Of(Normalised x);

}  // namespace qorvex::elementary
