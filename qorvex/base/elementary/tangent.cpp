// The tangent of an angle r in [0, pi/4].
//
// With a = i/512 nearest to r, h = |r - a| <= 2^-10, s the sign of r - a and t = tan h:
//
//     tan r = (sin a + s t cos a) / (cos a - s t sin a)
//     t = h (1 + h^2/3 + h^4 (2/15 + 17 h^2/315 + 62 h^4/2835))
//
// Error: 2^-102.5 from the words of h^4 and 2^-106.8 from breaking off, relative to t. All else but
// the quotient, 2^-98, is cut off below 2^-122, which is 2^-112 of a sine above 2^-10. A smaller r
// takes the series of t alone.
//
// The tangent of an algebraic number other than 0 is transcendental (Lindemann 1882, "Ueber die
// Zahl pi"), so no result but tan 0 is a number of the format or the middle of two.

#include <utility>

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/near_zero.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/quotient.h"
#include "qorvex/base/elementary/detail/sine_kernel.h"
#include "qorvex/base/elementary/detail/trigonometric256.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Nearly four times the error of the first stage.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 32;

// tan h / h - 1 at scale 2^128, for h <= 2^-10 at scale 2^127.
inline UInt128 TangentSeries(UInt128 h) {
  const auto [half_square, square, fourth] = PowersOfStep(h);
  const std::uint64_t tail = Ratio(2, 15, 66) + MultiplyHigh(square, Ratio(17, 315, 47)) +
                             MultiplyHigh(fourth, Ratio(62, 2835, 28));
  constexpr std::uint64_t two_thirds = 2 * Ratio(1, 3, 64);
  return MultiplyHighOfSmall(half_square, Join(two_thirds, two_thirds)) +
         ShiftedLeft(MultiplyHigh(fourth, tail), 24);
}

// tan r for r < 2^-10.
Wide SmallTangent(const Wide& r) {
  const UInt128 half = r.mantissa >> 1;
  const UInt128 growth = MultiplyHigh(half, TangentSeries(ScaledDown(r.mantissa, -r.exponent)));
  return NormalisedTop(half + growth, r.exponent + 1);
}

// tan r or 1 / tan r, from a row of the table other than 0.
[[gnu::always_inline]] inline Wide TangentFrom(const SineStep& step, bool inverted) {
  const std::uint64_t* const row = kSineTable[step.row];
  const UInt128 sine = Join(row[0], row[1]);
  const UInt128 cosine = Join(row[2], row[3]);
  const UInt128 h_128 = step.h + step.h;
  const UInt128 t = h_128 + MultiplyHighOfSmall(h_128, TangentSeries(step.h));
  const std::uint64_t mask = step.below ? ~std::uint64_t{0} : 0;
  const UInt128 signs = Join(mask, mask);
  const UInt128 above = sine + (MultiplyHighOfSmall(cosine, t) ^ signs);
  const UInt128 below = cosine - (MultiplyHighOfSmall(sine, t) ^ signs);
  return QuickQuotient(NormalisedTop(inverted ? below : above, 0),
                       NormalisedTop(inverted ? above : below, 0));
}

[[gnu::noinline]] Binary80 WithoutKernel(Binary80 x) {
  return x.Exponent() == kExponentOfInfinity || IsNaN(x) ? QuietNaN() : Canonical(x);
}

[[gnu::noinline]] Wide256 SecondStage(Normalised x, bool inverted, bool negative) {
  SineAndCosine256 parts = SineAndCosineOf(Angle256Of(x));
  if (inverted) std::swap(parts.sine, parts.cosine);
  const Wide256 tangent = parts.sine / parts.cosine;
  return negative ? -tangent : tangent;
}

[[gnu::always_inline]] inline Binary80 TangentKernel(Binary80 bits) {
  if (!NeedsKernel(bits)) [[unlikely]]
    return WithoutKernel(bits);
  const Normalised x{bits.significand, bits.Exponent() - kExponentBias};
  const Angle angle = AngleOf(x);
  // In odd quadrants, -1 / tan r.
  const bool inverted = (angle.quadrant & 1) != 0;
  const bool negative = inverted ^ angle.negative ^ bits.IsNegative();
  const SineStep step = StepOf(angle.r);
  Wide first;
  if (step.row != 0) [[likely]] {
    first = TangentFrom(step, inverted);
  } else {
    const Wide tangent = SmallTangent(SmallAngleOf(x));
    first = inverted ? QuickQuotient(kOne, tangent) : tangent;
  }
  first.negative = negative;
  return CorrectlyRounded(first, kHalfWidth, [&] { return SecondStage(x, inverted, negative); });
}

}  // namespace

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

Extended Tan(Extended x) noexcept {
  return elementary::FromBits(elementary::TangentKernel(elementary::BitsOf(x)));
}
void Tan(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::TangentKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals
