#include "qorvex/base/elementary/detail/erf_wide.h"

#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/monotone_piece.h"

namespace qorvex::elementary {

namespace {

// - From 0: e^(x^2) erfc(x) for x from 1/2 to 8, pieces of 1/16.
// - From kFarPieces: x e^(x^2) erfc(x) in 64 / x^2 from 0 to 1, pieces of 1/16.
// - kErfPiece: erf(x) / (2 x) in x^2 from 0 to 1/4.
constexpr std::size_t kFarPieces = 120;
constexpr std::size_t kErfPiece = 136;
alignas(64) constexpr MonotonePiece<100> kPieces[] = {
#include "qorvex/base/elementary/detail/tables/erfc_pieces.inc"
};

constexpr Wide kOne{UInt128{1} << 127, 0};

constexpr Wide Magnitude(const Wide& x) {
  return {x.mantissa, x.exponent, false};
}

// erf(x) for |x| < 1/2; relative error below 2^-103.
Wide ErfNearZero(const Wide& x) {
  const UInt128 fraction = FractionOf(ScaledBy(x * x, 2));
  return x * NormalisedWide(kPieces[kErfPiece].At(fraction), 0);
}

// erfc(x) for x >= 1/2. The square has an error of 2^-125 of itself, and is at most 2^14 where the
// result is within the format; there the error of the exponential function prevails.
Wide ErfcAway(const Wide& x) {
  return ScaledErfcWide(x) * ExpOf(-(x * x));
}

}  // namespace

Wide ScaledErfcWide(const Wide& x) {
  if (x.exponent < 3) {
    // The integer part of 16 x is the number of the piece.
    const auto shift = static_cast<int>(x.exponent + 5);
    const auto piece = static_cast<std::size_t>(High(x.mantissa) >> (64 - shift)) - 8;
    return NormalisedWide(kPieces[piece].At(x.mantissa << shift), -1);
  }
  const Wide reciprocal = kOne / x;
  const Wide argument = ScaledBy(reciprocal * reciprocal, 6);
  // 1 belongs to the last piece.
  const UInt128 fraction = argument.exponent < 0 ? FractionOf(argument) : ~UInt128{0};
  const std::size_t piece = kFarPieces + static_cast<std::size_t>(High(fraction) >> 60);
  return reciprocal * NormalisedWide(kPieces[piece].At(fraction << 4), -1);
}

Wide ErfWide(const Wide& x) {
  if (IsErfNearZero(x)) return ErfNearZero(x);
  const Wide erf = kOne - ErfcAway(Magnitude(x));
  return {erf.mantissa, erf.exponent, x.negative};
}

Wide ErfcWide(const Wide& x) {
  if (IsErfNearZero(x)) return kOne - ErfNearZero(x);
  const Wide upper = ErfcAway(Magnitude(x));
  return x.negative ? ScaledBy(kOne, 1) - upper : upper;
}

}  // namespace qorvex::elementary
