#pragma once

// Quotients for first stages: the reciprocal of the divisor in double, then one step of division
// with remainder in 128 bits.

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// a / b for b other than 0; relative error below 2^-98.
///
/// - The reciprocal comes from 53 bits of b and a division in double, each right to 2^-52 in any
///   rounding mode. Lowering it by 2^-50.4 keeps the remainder from being negative, and leaves an
///   error below 2^-49.6.
/// - The quotient has that error, and dividing the remainder by the same reciprocal squares it.
inline Wide QuickQuotient(const Wide& a, const Wide& b) {
  constexpr double lowered = 0x1p125 * (1 - 0x1.8p-51);
  const auto divisor = static_cast<double>(static_cast<std::int64_t>(High(b.mantissa) >> 1));
  const auto inverse = static_cast<std::uint64_t>(static_cast<std::int64_t>(lowered / divisor));
  // At scale 2^62, the remainder at scale 2^113, and its quotient at scale 2^111.
  const std::uint64_t quotient = MultiplyHigh(High(a.mantissa), inverse);
  const UInt128 remainder = (a.mantissa >> 2) - MultiplyHigh(b.mantissa, quotient);
  const std::uint64_t rest = MultiplyHigh(static_cast<std::uint64_t>(remainder >> 13), inverse);
  return NormalisedWide(Join(quotient, 0) + ShiftedWord(rest, 15), a.exponent - b.exponent + 1,
                        a.negative != b.negative);
}

}  // namespace qorvex::elementary
