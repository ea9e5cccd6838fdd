#pragma once

// Polynomials for completely monotone functions, whose derivatives alternate in sign. The functions
// are cut into pieces; scripts/elementary_tables/monotone_pieces.py makes their tables.

#include <array>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// c[0] - c[1] t + c[2] t^2 - ..., all c positive, on a piece from t = -1/2 to 1/2. The first six
/// coefficients have two words each, at scale 2^128, the others one word, at scale 2^narrow_scale.
template <int narrow_scale>
struct MonotonePiece {
  static constexpr std::size_t kTerms = 16;
  static constexpr std::size_t kWideTerms = 6;

  std::array<std::uint64_t, kTerms + kWideTerms> words;

  /// The value at a fraction of 2^-128 of the piece, at scale 2^128.
  ///
  /// Even and odd powers of t are summed side by side, without signs. Error: five products of 128
  /// bits, 10 units; the narrow part and the upper word of t^2 that it is multiplied with, 2^-61 of
  /// the last ten terms. The scripts of the tables check that the relative error with that of the
  /// polynomial is below the bound that the users of a table state.
  [[nodiscard, gnu::always_inline]] constexpr UInt128 At(UInt128 fraction) const {
    // t is the fraction minus 1/2.
    constexpr UInt128 half = UInt128{1} << 127;
    const UInt128 above = UInt128{0} - (fraction >> 127);  // all bits if t >= 0
    const UInt128 t = (fraction ^ half ^ ~above) - ~above;
    const UInt128 square = MultiplyHigh(t, t);
    const UInt128 odd = MultiplyHigh(Half<1>(square), t);
    return Half<0>(square) + ((odd ^ above) - above);
  }

 private:
  [[nodiscard]] constexpr UInt128 WideTerm(std::size_t k) const {
    return Join(words[2 * k], words[2 * k + 1]);
  }
  [[nodiscard]] constexpr std::uint64_t NarrowTerm(std::size_t k) const {
    return words[kWideTerms + k];
  }

  // Every second term, from t^first on, over t^first.
  template <std::size_t first>
  [[nodiscard, gnu::always_inline]] constexpr UInt128 Half(UInt128 square) const {
    std::uint64_t narrow = NarrowTerm(14 + first);
    narrow = NarrowTerm(12 + first) + MultiplyHigh(narrow, High(square));
    narrow = NarrowTerm(10 + first) + MultiplyHigh(narrow, High(square));
    narrow = NarrowTerm(8 + first) + MultiplyHigh(narrow, High(square));
    narrow = NarrowTerm(6 + first) + MultiplyHigh(narrow, High(square));
    UInt128 sum = WideTerm(4 + first) + (Multiply(narrow, High(square)) >> (narrow_scale - 64));
    sum = WideTerm(2 + first) + MultiplyHigh(sum, square);
    return WideTerm(first) + MultiplyHigh(sum, square);
  }
};

/// The integer x 2^128, cut off, for 0 <= x < 1.
constexpr UInt128 FractionOf(const Wide& x) {
  const std::int64_t shift = -1 - x.exponent;
  return shift < 128 ? x.mantissa >> shift : 0;
}

}  // namespace qorvex::elementary
