#pragma once

// The exact reduction of angles: x = (quadrant + f) pi/2 with |f| <= 1/2, for every x from pi/4 to
// the end of the format.
//
// - x = m 2^(e - 63), so that a bit of 2/pi before the (e - 64)th adds a multiple of 4 quadrants to
//   x 2/pi. Bits later than the (e - 65 + n)th add less than 2^(66 - n). The product of m and the
//   window of n bits between them is x 2/pi modulo 4 with that error (Payne and Hanek 1983, "Radian
//   reduction for trigonometric functions").
// - No x of the format comes closer to a multiple of pi/2 than 2^-76 of a quadrant, which the
//   continued fractions of 2^k / pi show (Kahan 1983, "Minimizing q m - n"): the closest is
//   17476981849448541921 2^10531. So f keeps n - 142 correct bits.

#include <array>
#include <cstddef>

#include "qorvex/base/elementary/detail/wide256.h"

namespace qorvex::elementary {

inline constexpr std::uint64_t kTwoOverPi[] = {
#include "qorvex/base/elementary/detail/tables/two_over_pi.inc"
};

/// A multiple of a quadrant and what remains.
template <std::size_t kWords>
struct Quadrants {
  unsigned quadrant;  // only the last two bits count
  bool negative;      // the sign of f
  /// |f| / 4 in words from the highest to the lowest. The error of f is below 2^(67 - 64 kWords).
  std::array<std::uint64_t, kWords> fraction;

  /// |f| with all leading bits.
  template <class Number>
  [[nodiscard]] Number Fraction() const {
    Number sum;
    for (std::size_t i = 0; i < kWords; i += 2)
      sum = sum + Number(NormalisedWide(Join(fraction[i], fraction[i + 1]),
                                        1 - 64 * static_cast<std::int64_t>(i)));
    return sum;
  }
};

/// x in quadrants, for a positive x >= pi/4.
template <std::size_t kWords>
[[gnu::always_inline]] inline Quadrants<kWords> QuadrantsOf(Normalised x) {
  // The first word of the table holds bits -127 to -64 of 2/pi.
  const auto first = static_cast<unsigned>(x.exponent + 63);
  const std::uint64_t* const bits = &kTwoOverPi[first / 64];
  const unsigned shift = first % 64;
  std::array<std::uint64_t, kWords> product;
  std::uint64_t carry = 0;
  // Unrolled, three words stay in registers.
#pragma GCC unroll 8
  for (std::size_t k = 1; k <= kWords; ++k) {
    const std::size_t i = kWords - k;
    const std::uint64_t window = bits[i] << shift | bits[i + 1] >> 1 >> (63 - shift);
    const UInt128 part = Multiply(window, x.significand) + carry;
    product[i] = Low(part);
    carry = High(part);
  }
  // The two top bits count quadrants. A fraction of 1/2 or more belongs to the next one.
  constexpr std::uint64_t half = kTopBit >> 2;
  const std::uint64_t shifted = product[0] + half;
  product[0] = (shifted & (2 * half - 1)) - half;
  const std::uint64_t mask = 0 - (product[0] >> 63);
#pragma GCC unroll 8
  for (std::uint64_t& word : product) word ^= mask;
  return {static_cast<unsigned>(shifted >> 62), mask != 0, product};
}

}  // namespace qorvex::elementary
