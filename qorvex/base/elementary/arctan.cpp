// The arc tangent.
//
// If atan x = y were an algebraic number other than 0, its tangent x would be transcendental
// (Lindemann 1882, "Ueber die Zahl pi"): no result but atan 0 is a number of the format or the
// middle of two.

#include "qorvex/base/elementary/detail/arctan_kernel.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/near_zero.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/trigonometric256.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Four times the error of the first stage, 2^-97 of the result.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 33;

[[gnu::noinline]] Binary80 WithoutKernel(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (IsInfinity(x)) return NearestBits(Wide{kHalfPi, 0, x.IsNegative()});
  return Canonical(x);
}

[[gnu::noinline]] Wide256 SecondStage(const Wide& x, bool negative) {
  const Wide256 arc = ArcTan256(x, kOne);
  return negative ? -arc : arc;
}

[[gnu::always_inline]] inline Binary80 ArcTanKernel(Binary80 bits) {
  if (!NeedsKernel(bits)) [[unlikely]]
    return WithoutKernel(bits);
  const Wide x{Join(bits.significand, 0), bits.Exponent() - kExponentBias};
  Wide first = x.exponent < 0 ? SmallArcTan(x)
                              : ComplementOfArcTan(ScaledDown(
                                    ShiftedLeft(QuickReciprocal(bits.significand), 1), x.exponent));
  first.negative = bits.IsNegative();
  return CorrectlyRounded(first, kHalfWidth, [&] { return SecondStage(x, bits.IsNegative()); });
}

}  // namespace

Wide ArcTanWide(const Wide& y, const Wide& x) {
  if (x.IsZero()) return {kHalfPi, 0};
  if (IsSmaller(y, x)) return SmallArcTan(QuickQuotient(y, x));
  const Wide t = QuickQuotient(x, y);
  return ComplementOfArcTan(ScaledDown(t.mantissa, -1 - t.exponent));
}

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

Extended ArcTan(Extended x) noexcept {
  return elementary::FromBits(elementary::ArcTanKernel(elementary::BitsOf(x)));
}
void ArcTan(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::ArcTanKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals
