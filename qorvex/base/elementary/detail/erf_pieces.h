#pragma once

// The smooth parts of the error functions, in pieces.

#include <array>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// Coefficients c of c[0] - c[1] t + c[2] t^2 - ..., all positive, on a piece from t = -1/2 to 1/2:
/// the first eight as two words each at scale 2^128, the others as one word at scale 2^100.
struct ErfPiece {
  static constexpr std::size_t kTerms = 16;
  static constexpr std::size_t kWideTerms = 8;
  static constexpr int kNarrowScale = 100;

  std::array<std::uint64_t, kTerms + kWideTerms> words;

  [[nodiscard]] constexpr UInt128 Wide(std::size_t k) const {
    return Join(words[2 * k], words[2 * k + 1]);
  }
  [[nodiscard]] constexpr std::uint64_t Narrow(std::size_t k) const {
    return words[kWideTerms + k];
  }
};

/// - From 0: e^(x^2) erfc(x) for x from 1/2 to 8, pieces of 1/16.
/// - From kFarPieces: x e^(x^2) erfc(x) in 64 / x^2 from 0 to 1, pieces of 1/16.
/// - kErfPiece: erf(x) / (2 x) in x^2 from 0 to 1/4.
inline constexpr std::size_t kFarPieces = 120;
inline constexpr std::size_t kErfPiece = 136;
alignas(64) inline constexpr ErfPiece kErfPieces[] = {
#include "qorvex/base/elementary/detail/tables/erfc_pieces.inc"
};

/// Every second term of the sum, from t^first on, in t^2.
template <std::size_t first>
[[gnu::always_inline]] constexpr UInt128 HalfOfPiece(const ErfPiece& piece, UInt128 square) {
  std::uint64_t narrow = piece.Narrow(14 + first);
  narrow = piece.Narrow(12 + first) + MultiplyHigh(narrow, High(square));
  narrow = piece.Narrow(10 + first) + MultiplyHigh(narrow, High(square));
  narrow = piece.Narrow(8 + first) + MultiplyHigh(narrow, High(square));
  UInt128 sum =
      piece.Wide(6 + first) + (Multiply(narrow, High(square)) >> (ErfPiece::kNarrowScale - 64));
  sum = piece.Wide(4 + first) + MultiplyHigh(sum, square);
  sum = piece.Wide(2 + first) + MultiplyHigh(sum, square);
  return piece.Wide(first) + MultiplyHigh(sum, square);
}

/// The function at a fraction of 2^-128 of its piece, at scale 2^128.
///
/// Even and odd powers of t are summed side by side, by sums without signs. Relative error below
/// 2^-103, which the script of the table checks: the polynomials' is 2^-112, the coefficients of 64
/// bits and the upper word of t^2 that they are multiplied with leave 2^-107, and the products of
/// 128 bits leave 12 units of 2^-128. The functions are at least 0.07.
[[gnu::always_inline]] constexpr UInt128 AtFraction(const ErfPiece& piece, UInt128 fraction) {
  // t is the fraction minus 1/2.
  constexpr UInt128 half = UInt128{1} << 127;
  const UInt128 above = UInt128{0} - (fraction >> 127);  // all bits if t >= 0
  const UInt128 t = ((fraction ^ half) ^ ~above) - ~above;
  const UInt128 square = MultiplyHigh(t, t);
  const UInt128 odd = MultiplyHigh(HalfOfPiece<1>(piece, square), t);
  return HalfOfPiece<0>(piece, square) + ((odd ^ above) - above);
}

}  // namespace qorvex::elementary
