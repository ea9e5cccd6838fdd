#pragma once

// What the logarithms to all bases have in common outside the positive numbers.

#include "qorvex/base/elementary/detail/binary80.h"

namespace qorvex::elementary {

/// Whether x is positive, and neither subnormal nor infinite.
inline bool IsPositiveNormal(Binary80 x) noexcept {
  return x.significand >= kTopBit && x.sign_exponent - 1u < kExponentOfInfinity - 1u;
}

/// Whether x is finite and above 0.
inline bool IsPositive(Binary80 x) noexcept {
  return !x.IsNegative() && !IsZero(x) && !IsNaN(x) && !IsInfinity(x);
}

/// -infinity for zeros, infinity for infinity, and NaN for negative x and NaN.
inline Binary80 LogOfSpecial(Binary80 x) noexcept {
  if (IsZero(x)) return SignedInfinity(true);
  return IsInfinity(x) && !x.IsNegative() ? x : QuietNaN();
}

}  // namespace qorvex::elementary
