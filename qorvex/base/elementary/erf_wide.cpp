#include "qorvex/base/elementary/detail/erf_wide.h"

#include "qorvex/base/elementary/detail/erf_pieces.h"
#include "qorvex/base/elementary/detail/first_stage.h"

namespace qorvex::elementary {

namespace {

constexpr Wide kOne{UInt128{1} << 127, 0};

constexpr Wide Magnitude(const Wide& x) {
  return {x.mantissa, x.exponent, false};
}

// From here on in x, erfc is computed, and erf as 1 minus it; below the other way round.
constexpr bool IsNearZero(const Wide& x) {
  return x.IsZero() || x.exponent < -1;
}

// The integer x 2^128, x < 1.
constexpr UInt128 Fraction(const Wide& x) {
  const std::int64_t shift = -1 - x.exponent;
  return shift < 128 ? x.mantissa >> shift : 0;
}

// erf(x) for |x| < 1/2; relative error below 2^-103.
Wide ErfNearZero(const Wide& x) {
  const UInt128 fraction = Fraction(ScaledBy(x * x, 2));
  return x * NormalisedWide(AtFraction(kErfPieces[kErfPiece], fraction), 0);
}

// e^(x^2) erfc(x) for x >= 1/2; relative error below 2^-103.
Wide ScaledErfc(const Wide& x) {
  if (x.exponent < 3) {
    // The integer part of 16 x is the number of the piece.
    const auto shift = static_cast<int>(x.exponent + 5);
    const auto piece = static_cast<std::size_t>(High(x.mantissa) >> (64 - shift)) - 8;
    return NormalisedWide(AtFraction(kErfPieces[piece], x.mantissa << shift), -1);
  }
  const Wide reciprocal = kOne / x;
  const Wide argument = ScaledBy(reciprocal * reciprocal, 6);
  // 1 belongs to the last piece.
  const UInt128 fraction = argument.exponent < 0 ? Fraction(argument) : ~UInt128{0};
  const std::size_t piece = kFarPieces + static_cast<std::size_t>(High(fraction) >> 60);
  return reciprocal * NormalisedWide(AtFraction(kErfPieces[piece], fraction << 4), -1);
}

// erfc(x) for x >= 1/2. The square has an error of 2^-125 of itself, and is at most 2^14 where the
// result is within the format; there the error of the exponential function prevails.
Wide ErfcAway(const Wide& x) {
  return ScaledErfc(x) * ExpWide(-(x * x));
}

}  // namespace

Wide ErfWide(const Wide& x) {
  if (IsNearZero(x)) return ErfNearZero(x);
  const Wide erf = kOne - ErfcAway(Magnitude(x));
  return {erf.mantissa, erf.exponent, x.negative};
}

Wide ErfcWide(const Wide& x) {
  if (IsNearZero(x)) return kOne - ErfNearZero(x);
  const Wide upper = ErfcAway(Magnitude(x));
  return x.negative ? ScaledBy(kOne, 1) - upper : upper;
}

}  // namespace qorvex::elementary
