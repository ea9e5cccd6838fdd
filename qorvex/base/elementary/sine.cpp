// The sine and the cosine.
//
// The sine of an algebraic number other than 0 is transcendental (Lindemann 1882, "Ueber die Zahl
// pi"), and so is the cosine: no result but sin 0 and cos 0 is a number of the format or the middle
// of two.

#include <utility>

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/sine_kernel.h"
#include "qorvex/base/elementary/detail/trigonometric256.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Added to the quadrant of the angle, makes a sine of it.
enum Shift : unsigned { kSine = 0, kCosine = 1 };

// Four times the error of the first stage.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 27;

// Angles from here on need a kernel; below, sin x rounds to x and cos x to 1, for x^2/6 and x^2/2
// are less than half the distance to the next number.
constexpr int kLeastExponent = -32;

// Whether x is finite, normal and not tiny.
inline bool NeedsKernel(Binary80 x) {
  constexpr int first = kExponentBias + kLeastExponent;
  return static_cast<unsigned>(x.Exponent() - first) <
             static_cast<unsigned>(kExponentOfInfinity - first) &&
         x.significand >= kTopBit;
}

[[gnu::noinline]] Binary80 WithoutKernel(Binary80 x, Shift shift) {
  if (x.Exponent() == kExponentOfInfinity || IsNaN(x)) return QuietNaN();
  return shift == kSine ? Canonical(x) : SignedOne(false);
}

[[gnu::noinline]] Wide256 SecondStage(Normalised x, bool is_cosine, bool negative) {
  const SineAndCosine256 result = SineAndCosineOf(Angle256Of(x));
  const Wide256& magnitude = is_cosine ? result.cosine : result.sine;
  return negative ? -magnitude : magnitude;
}

// The sine of x + shift pi/2.
template <Shift kShift>
[[gnu::always_inline]] inline Binary80 SineKernel(Binary80 bits) {
  if (!NeedsKernel(bits)) [[unlikely]]
    return WithoutKernel(bits, kShift);
  const Normalised x{bits.significand, bits.Exponent() - kExponentBias};
  const Angle angle = AngleOf(x);
  const unsigned quadrant = angle.quadrant + kShift;
  const bool is_cosine = (quadrant & 1) != 0;
  bool negative = (quadrant & 2) != 0;
  negative ^= !is_cosine && angle.negative;
  negative ^= kShift == kSine && bits.IsNegative();
  const SineStep step = StepOf(angle.r);
  const Wide first = step.row == 0 && !is_cosine
                         ? SmallSine(SmallAngleOf(x))
                         : NormalisedWide(SinePart(step, SeriesOf(step.h), quadrant & 1), 0);
  return CorrectlyRounded({first.mantissa, first.exponent, negative}, kHalfWidth,
                          [&] { return SecondStage(x, is_cosine, negative); });
}

}  // namespace

SineAndCosine SinCosWide(Extended x) {
  const Binary80 bits = BitsOf(x);
  if (bits.significand == 0) return {{}, Wide(1.0L)};
  const Normalised magnitude = Normalise(bits);
  if (magnitude.exponent < -60) return {Wide(x), Wide(1.0L)};
  const Angle angle = AngleOf(magnitude);
  const SineStep step = StepOf(angle.r);
  const SineSeries series = SeriesOf(step.h);
  Wide sine = step.row == 0 ? SmallSine(SmallAngleOf(magnitude))
                            : NormalisedWide(SinePart(step, series, 0), 0);
  Wide cosine = NormalisedWide(SinePart(step, series, 1), 0);
  sine.negative = angle.negative;
  if ((angle.quadrant & 1) != 0) {
    std::swap(sine, cosine);
    cosine.negative = !cosine.negative;
  }
  const bool turned = (angle.quadrant & 2) != 0;
  sine.negative ^= turned != bits.IsNegative();
  cosine.negative ^= turned;
  return {sine, cosine};
}

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

using elementary::BitsOf;
using elementary::FromBits;

Extended Sin(Extended x) noexcept {
  return FromBits(elementary::SineKernel<elementary::kSine>(BitsOf(x)));
}
void Sin(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results, elementary::SineKernel<elementary::kSine>);
}
Extended Cos(Extended x) noexcept {
  return FromBits(elementary::SineKernel<elementary::kCosine>(BitsOf(x)));
}
void Cos(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results, elementary::SineKernel<elementary::kCosine>);
}

}  // namespace qorvex::inline QorvexGlobals
