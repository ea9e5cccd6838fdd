#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

// The second stage: where the first is in doubt, and for |x| from 2^-66 to 2^-64. e^x is
// transcendental unless x = 0 (Lindemann 1882), so it is never a midpoint.
[[gnu::noinline]] Wide256 ExpInDoubt(Binary80 x) {
  return elementary::Exp(Wide256(FromBits(x)));
}

// All x but those from 2^-64 to 2^14 in absolute value.
[[gnu::noinline]] Binary80 ExpOfUnusual(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  const int exponent = x.Exponent() - kExponentBias;
  if (exponent > 0) return x.IsNegative() ? SignedZero(false) : SignedInfinity(false);
  // Below 2^-66, the distance from 1 to both its midpoints is larger.
  return exponent < -66 ? SignedOne(false) : NearestBits(ExpInDoubt(x));
}

[[gnu::always_inline]] inline Binary80 ExpKernel(Binary80 x) {
  const int exponent = x.Exponent() - kExponentBias;
  if (static_cast<unsigned>(exponent + 64) >= 64 + 14 || x.significand < kTopBit) [[unlikely]]
    return ExpOfUnusual(x);
  constexpr std::uint64_t half_width = 1 << 16;
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
  return ExpOf(x);
}

}  // namespace qorvex::elementary
