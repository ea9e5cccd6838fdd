#include "qorvex/base/elementary/detail/erf_wide.h"

#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/monotone_piece.h"
#include "qorvex/base/elementary/detail/quotient.h"

namespace qorvex::elementary {

namespace {

// - From 0: e^(x^2) erfc(x) / 2 for x from 0 to 8, pieces of 1/16.
// - From kFarPieces: x e^(x^2) erfc(x) / 2 in 64 / x^2 from 0 to 1, pieces of 1/16.
// - kErfPiece: erf(x) / (8 x) in x^2 from 0 to 1/4.
// The relative error of all is below 2^-91.
constexpr std::size_t kFarPieces = 128;
constexpr std::size_t kErfPiece = 144;
alignas(64) constexpr MonotonePiece<91> kPieces[] = {
#include "qorvex/base/elementary/detail/tables/erfc_pieces.inc"
};

// ScaledHalfErfcWide from 8 on.
[[gnu::noinline]] Wide FarScaledHalfErfc(const Wide& x) {
  const Wide reciprocal = QuickQuotient(kOne, {x.mantissa, x.exponent});
  const Wide argument = ScaledBy(reciprocal * reciprocal, 6);
  // 1 belongs to the last piece.
  const UInt128 fraction = argument.exponent < 0 ? FractionOf(argument) : ~UInt128{0};
  const std::size_t piece = kFarPieces + static_cast<std::size_t>(High(fraction) >> 60);
  return reciprocal * NormalisedWide(kPieces[piece].At(fraction << 4), -1);
}

[[gnu::always_inline]] inline Wide ScaledHalfErfc(const Wide& x) {
  if (x.exponent >= 3) return FarScaledHalfErfc(x);
  // The integer part of 16 |x| is the number of the piece.
  const UInt128 eighth = FractionOf({x.mantissa, x.exponent - 3});
  const auto piece = static_cast<std::size_t>(High(eighth) >> 57);
  return NormalisedWide(kPieces[piece].At(eighth << 7), -1);
}

// For |x| < 2^16 the square is below 2^32. Its error of 2^-124.4 of itself, and that of the product
// in ExpWide, add 2^-91.4; below 2^7, where erfc is within the format, next to nothing.
[[gnu::always_inline]] inline Wide HalfErfc(const Wide& x) {
  const Wide exponent = -(x * x);
  return ScaledHalfErfc(x) * (exponent.exponent < 14 ? ExpOf(exponent) : ExpWide(exponent));
}

}  // namespace

Wide ScaledHalfErfcWide(const Wide& x) {
  return ScaledHalfErfc(x);
}

Wide HalfErfcWide(const Wide& x) {
  return HalfErfc(x);
}

Wide ErfcWide(const Wide& x) {
  const Wide erfc = ScaledBy(HalfErfc(x), 1);
  return x.negative ? ScaledBy(kOne, 1) - erfc : erfc;
}

Wide ErfWide(const Wide& x) {
  // Below 1/2, 1 - erfc would lose digits.
  if (x.exponent < -1) {
    const UInt128 fraction = FractionOf(ScaledBy(x * x, 2));
    return x * NormalisedWide(kPieces[kErfPiece].At(fraction), 2);
  }
  const Wide erf = kOne - ScaledBy(HalfErfc(x), 1);
  return {erf.mantissa, erf.exponent, x.negative};
}

}  // namespace qorvex::elementary
