// The tangent, as the quotient of sine and cosine.
//
// The tangent of an algebraic number other than 0 is transcendental (Lindemann 1882, "Ueber die
// Zahl pi"), so no result but tan 0 is a number of the format or the middle of two.

#include <utility>

#include "qorvex/base/elementary/detail/near_zero.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/quotient.h"
#include "qorvex/base/elementary/detail/sine_and_cosine.h"
#include "qorvex/base/elementary/detail/trigonometric256.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Nearly four times the error of the first stage: 2^-98 from the quotient, twice 2^-103.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 32;

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
  const SineAndCosine parts = SineAndCosineOf(angle, x);
  // In odd quadrants, -cos r / sin r.
  const bool inverted = (angle.quadrant & 1) != 0;
  const bool negative = inverted ^ angle.negative ^ bits.IsNegative();
  Wide first =
      QuickQuotient(inverted ? parts.cosine : parts.sine, inverted ? parts.sine : parts.cosine);
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
