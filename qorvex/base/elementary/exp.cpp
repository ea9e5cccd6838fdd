#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

// The second stage. e^x is transcendental unless x = 0 (Lindemann 1882), so it is never a midpoint.
[[gnu::noinline]] Wide256 ExpInDoubt(Binary80 x) {
  return elementary::Exp(Wide256(FromBits(x)));
}

// All x but those from 2^-49 to 2^14 in absolute value.
[[gnu::noinline]] Binary80 ExpOfUnusual(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  const int exponent = x.Exponent() - kExponentBias;
  if (exponent > 0) return x.IsNegative() ? SignedZero(false) : SignedInfinity(false);
  // The midpoints beside 1 are further away.
  if (exponent < -66) return SignedOne(false);
  // The term after x^2 / 2 is below 2^-152.
  const Wide t(FromBits(x));
  return CorrectlyRounded(kOne + (t + ScaledBy(t * t, -1)), 32, [x] { return ExpInDoubt(x); });
}

[[gnu::always_inline]] inline Binary80 ExpKernel(Binary80 x) {
  const int exponent = x.Exponent() - kExponentBias;
  if (static_cast<unsigned>(exponent + 49) >= 49 + 14 || x.significand < kTopBit) [[unlikely]]
    return ExpOfUnusual(x);
  constexpr std::uint64_t half_width = 1 << 17;
  return CorrectlyRounded(ExpOf(x.significand, exponent, x.IsNegative()), half_width,
                          [x] { return ExpInDoubt(x); });
}

}  // namespace

Extended Exp(Extended x) noexcept {
  return FromBits(ExpKernel(BitsOf(x)));
}
void Exp(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return ExpKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {

Wide ExpWide(const Wide& x) {
  if (x.exponent < 14) return ExpOf(x);
  // Whole powers of 2 first.
  const std::uint64_t twos = MultiplyHigh(High(x.mantissa), kInverseLn2) >> (62 - x.exponent);
  const Wide rest = Wide{x.mantissa, x.exponent} - NormalisedWide(twos, 127) * kLn2;
  const auto k = static_cast<std::int64_t>(twos);
  return x.negative ? ScaledBy(ExpOf(-rest), -k) : ScaledBy(ExpOf(rest), k);
}

}  // namespace qorvex::elementary
