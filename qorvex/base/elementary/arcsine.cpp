// The arc sine and the arc cosine.
//
// With P(z) = asin(sqrt z) / sqrt z:
//
//     asin x = x P(x^2)                          for |x| <= 1/2
//     acos x = 2 sqrt z P(z), z = (1 - x) / 2    for x > 1/2
//
// and the rest by asin x + acos x = pi/2 and acos(-x) = pi - acos x. Both squares are exact.
//
// If asin x = y were an algebraic number other than 0, its sine x would be transcendental
// (Lindemann 1882, "Ueber die Zahl pi"): no results but asin 0 and acos 1 are numbers of the format
// or the middle of two.

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/arc_pieces.h"
#include "qorvex/base/elementary/detail/near_zero.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/quick_square_root.h"
#include "qorvex/base/elementary/detail/trigonometric256.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Four times the error of the first stage: 2^-98.5 from the square root and 2^-100 from P, at most
// twice that of the result after a subtraction, and so below 2^-97.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 33;

// pi/2 at scale 2^126, where pi has the digits of kHalfPi.
constexpr UInt128 kHalfPi126 = kHalfPi >> 1;

// asin |x| for |x| <= 1/2, else acos |x|, as product 2^(exponent - 126).
struct Arc {
  UInt128 product;
  std::int64_t exponent;
  bool is_cosine;

  [[nodiscard]] Wide Number() const { return NormalisedTop(product, exponent + 1); }
  [[nodiscard]] UInt128 AtScale126() const { return ScaledDown(product, -exponent); }
};

// For 0 < |x| < 1, normal.
[[gnu::always_inline]] inline Arc ArcOf(Binary80 x) {
  const int exponent = x.Exponent() - kExponentBias;
  if (exponent < -1 || x.significand == kTopBit) {
    const UInt128 square = Multiply(x.significand, x.significand);
    return {MultiplyHigh(Join(x.significand, 0),
                         ArcSineQuotient(ScaledDown(square, -2 * exponent - 2))),
            exponent, false};
  }
  // z = complement 2^-65 = a 2^(-shift - 1), where 1/4 <= a < 1 and the shift is odd.
  const std::uint64_t complement = 0 - x.significand;
  const int shift = (std::countl_zero(complement) - 1) | 1;
  return {MultiplyHigh(QuickSquareRoot(complement << shift),
                       ArcSineQuotient(ShiftedLeft(complement, 63))),
          1 - (shift + 1) / 2, true};
}

[[gnu::noinline]] Wide256 SecondStage(Binary80 bits, bool cosine_wanted) {
  const Wide256 x = Wide(FromBits(bits));
  const Wide256 magnitude = bits.IsNegative() ? -x : x;
  const Wide256 other = SquareRoot((Wide256(1) - magnitude) * (magnitude + 1));
  if (!cosine_wanted) {
    const Wide256 arc = ArcTan256(magnitude, other);
    return bits.IsNegative() ? -arc : arc;
  }
  const Wide256 arc = ArcTan256(other, magnitude);
  return bits.IsNegative() ? kPi256 - arc : arc;
}

// Magnitudes from 1 on, subnormal numbers, 0 and tiny sines.
[[gnu::noinline]] Binary80 ArcSineAtEnds(Binary80 x) {
  if (x.Exponent() < kExponentBias) return IsInvalidPattern(x) ? QuietNaN() : Canonical(x);
  const bool is_one = x.Exponent() == kExponentBias && x.significand == kTopBit;
  return is_one ? NearestBits(Wide{kHalfPi, 0, x.IsNegative()}) : QuietNaN();
}
[[gnu::noinline]] Binary80 ArcCosineAtEnds(Binary80 x) {
  if (x.Exponent() == 0) return NearestBits(Wide{kHalfPi, 0});
  const bool is_one = x.Exponent() == kExponentBias && x.significand == kTopBit;
  if (!is_one) return QuietNaN();
  return x.IsNegative() ? NearestBits(Wide{kHalfPi, 1}) : SignedZero(false);
}

[[gnu::always_inline]] inline Binary80 ArcSineKernel(Binary80 x) {
  constexpr int least = kExponentBias + kLeastExponent;
  if (static_cast<unsigned>(x.Exponent() - least) >= -kLeastExponent || x.significand < kTopBit)
      [[unlikely]]
    return ArcSineAtEnds(x);
  const Arc arc = ArcOf(x);
  Wide first = arc.is_cosine ? NormalisedTop(kHalfPi126 - arc.AtScale126(), 1) : arc.Number();
  first.negative = x.IsNegative();
  return CorrectlyRounded(first, kHalfWidth, [&] { return SecondStage(x, false); });
}

[[gnu::always_inline]] inline Binary80 ArcCosineKernel(Binary80 x) {
  if (static_cast<unsigned>(x.Exponent() - 1) >= kExponentBias - 1 || x.significand < kTopBit)
      [[unlikely]]
    return ArcCosineAtEnds(x);
  const Arc arc = ArcOf(x);
  Wide first;
  if (arc.is_cosine && !x.IsNegative()) {
    first = arc.Number();
  } else {
    // pi - acos |x| or pi/2 - asin x.
    const std::uint64_t mask = arc.is_cosine || !x.IsNegative() ? ~std::uint64_t{0} : 0;
    const UInt128 from = arc.is_cosine ? kHalfPi : kHalfPi126;
    first = NormalisedTop(from + (arc.AtScale126() ^ Join(mask, mask)), 1);
  }
  return CorrectlyRounded(first, kHalfWidth, [&] { return SecondStage(x, true); });
}

}  // namespace

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

using elementary::BitsOf;
using elementary::FromBits;

Extended ArcSin(Extended x) noexcept {
  return FromBits(elementary::ArcSineKernel(BitsOf(x)));
}
void ArcSin(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::ArcSineKernel(t); });
}
Extended ArcCos(Extended x) noexcept {
  return FromBits(elementary::ArcCosineKernel(BitsOf(x)));
}
void ArcCos(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::ArcCosineKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals
