#pragma once

// Square roots for first stages: a root in double, then one step of Newton's method in 128 bits.

#include <cmath>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// sqrt(a) at scale 2^127 for a = word 2^-64 in [1/4, 1); relative error below 2^-98.5.
///
/// - A root s comes from 53 bits of a and a square root in double, each right to 2^-52 in any
///   rounding mode. Lowered by 2^-50.4, it is too small, by less than 2^-49.5.
/// - In sqrt(a) = s + (a - s^2) / (2 s) - ... the next term is below 2^-100, and 1 / (2 s) from a
///   division in double is right to 2^-49.2.
inline UInt128 QuickSquareRoot(std::uint64_t word) {
  constexpr double lowered = 1 - 0x1.8p-51;
  const double a = static_cast<double>(static_cast<std::int64_t>(word >> 1)) * 0x1p-63;
  const double root = std::sqrt(a) * lowered;
  const auto s = static_cast<std::uint64_t>(static_cast<std::int64_t>(root * 0x1p63));
  const auto inverse =
      static_cast<std::uint64_t>(static_cast<std::int64_t>(0x1p62 * lowered * lowered / root));
  // At scale 2^126, and the correction at scale 2^111.
  const UInt128 remainder = ShiftedLeft(word, 62) - Multiply(s, s);
  const std::uint64_t correction = MultiplyHigh(Low(ShiftedRight(remainder, 14)), inverse);
  return Join(s, 0) + ShiftedLeft(correction, 16);
}

}  // namespace qorvex::elementary
