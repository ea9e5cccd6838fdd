#pragma once

// Rounding in two stages (Ziv 1991, "Fast evaluation of elementary mathematical functions with
// correctly rounded last bit").

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/elementary/detail/wide256.h"

namespace qorvex::elementary {

/// The bits of the nearest extended number to the value that `first` approximates.
///
/// - `first` is not 0. Its relative error is below half_width 2^-128, with half_width at most 2^62.
/// - If the value may lie on the other side of a midpoint, second() computes it as a Wide256, with
///   a relative error below 2^-201. NearestBits(Wide256) rounds it, and takes a value within 2^-200
///   of a midpoint for the midpoint. One argument in 2^135 comes that close by chance: none is to
///   be expected among 2^64, but some are among the pairs of Pow (pow.cpp).
/// - Results in the top binade and subnormal ones always take the second stage: they may round to
///   infinity, and have their midpoints elsewhere.
template <class Second>
inline Binary80 CorrectlyRounded(const Wide& first, std::uint64_t half_width, Second second) {
  const auto biased = static_cast<std::uint64_t>(first.exponent + kExponentBias);
  const bool is_usual = biased - 1 < kExponentOfInfinity - 2u;
  // Half a unit of the last place is the top bit of the low word.
  if (is_usual && Low(first.mantissa) - (kTopBit - half_width) > 2 * half_width) [[likely]]
    return LeadingBits(first, Low(first.mantissa) >> 63);
  // Infinity and 0 beyond the format, whatever the last bits: subnormal numbers reach to 2^-16445.
  if (first.exponent > kExponentBias || first.exponent < -16447) return NearestBits(first);
  return NearestBits(second());
}

}  // namespace qorvex::elementary
