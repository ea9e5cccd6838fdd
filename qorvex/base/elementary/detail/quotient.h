#pragma once

// Quotients for first stages: the reciprocal of the divisor in double, then one step of division
// with remainder in 128 bits.

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// 2^62 / B for B = b 2^-64 in [1/2, 1); too small by at most 2^-49.6 of it, and never too large.
///
/// In double, from 53 bits of b: the conversion and the division are right to 2^-52 in any rounding
/// mode, and the result is lowered by 2^-50.4.
inline std::uint64_t QuickInverse(std::uint64_t b) {
  constexpr double lowered = 0x1p125 * (1 - 0x1.8p-51);
  const auto divisor = static_cast<double>(static_cast<std::int64_t>(b >> 1));
  return static_cast<std::uint64_t>(static_cast<std::int64_t>(lowered / divisor));
}

/// A quotient at scale 2^126 from its first word at scale 2^62 and the remainder at scale 2^126,
/// which is below 2^-49.5: dividing it by the same inverse squares the error, to 2^-99.
inline UInt128 WithRemainder(std::uint64_t quotient, UInt128 remainder, std::uint64_t inverse) {
  const std::uint64_t rest = MultiplyHigh(Low(ShiftedRight(remainder, 13)), inverse);
  return Join(quotient, 0) + ShiftedLeft(rest, 15);
}

/// 1 / B at scale 2^126 for B = b 2^-64 in [1/2, 1); relative error below 2^-98, never too large.
inline UInt128 QuickReciprocal(std::uint64_t b) {
  const std::uint64_t inverse = QuickInverse(b);
  return WithRemainder(inverse, (UInt128{1} << 126) - Multiply(inverse, b), inverse);
}

/// a / b for numbers other than 0; relative error below 2^-98, never too large.
inline Wide QuickQuotient(const Wide& a, const Wide& b) {
  const std::uint64_t inverse = QuickInverse(High(b.mantissa));
  const std::uint64_t quotient = MultiplyHigh(High(a.mantissa), inverse);
  const UInt128 remainder = ShiftedRight(a.mantissa, 2) - MultiplyHigh(b.mantissa, quotient);
  return NormalisedTop(WithRemainder(quotient, remainder, inverse), a.exponent - b.exponent + 1,
                       a.negative != b.negative);
}

}  // namespace qorvex::elementary
