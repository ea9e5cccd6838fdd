// The sine and the cosine.
//
// The sine of an algebraic number other than 0 is transcendental (Lindemann 1882, "Ueber die Zahl
// pi"), and so is the cosine: no result but sin 0 and cos 0 is a number of the format or the middle
// of two.

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/near_zero.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/sine_kernel.h"
#include "qorvex/base/elementary/detail/trigonometric256.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Added to the quadrant of the angle, makes a sine of it.
enum Shift : unsigned { kSine = 0, kCosine = 1 };

// Four times the error of the first stage, 2^-103 of the result.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 27;

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
                         : NormalisedTop(SinePart(step, SeriesOf(step.h), quadrant & 1), 0);
  return CorrectlyRounded({first.mantissa, first.exponent, negative}, kHalfWidth,
                          [&] { return SecondStage(x, is_cosine, negative); });
}

}  // namespace

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

using elementary::BitsOf;
using elementary::FromBits;

Extended Sin(Extended x) noexcept {
  return FromBits(elementary::SineKernel<elementary::kSine>(BitsOf(x)));
}
void Sin(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results, [](elementary::Binary80 t) {
    return elementary::SineKernel<elementary::kSine>(t);
  });
}
Extended Cos(Extended x) noexcept {
  return FromBits(elementary::SineKernel<elementary::kCosine>(BitsOf(x)));
}
void Cos(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results, [](elementary::Binary80 t) {
    return elementary::SineKernel<elementary::kCosine>(t);
  });
}

}  // namespace qorvex::inline QorvexGlobals
