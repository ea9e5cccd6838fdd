#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

// The second stage. For integers the result is exact, to more than the 200 bits that are looked at.
// For other numbers, which are n / 2^s with an odd n and s > 0, it is irrational: no midpoint.
[[gnu::noinline]] Wide256 Exp2InDoubt(Binary80 x) {
  return elementary::Exp(Wide256(FromBits(x)) * kLn2Of256);
}

// The relative error is below 2^-111.
constexpr std::uint64_t kHalfWidth = 1 << 17;

// All x but those from 2^-16 to 2^15 in absolute value.
[[gnu::noinline]] Binary80 Exp2OfUnusual(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  const int exponent = x.Exponent() - kExponentBias;
  if (exponent > 0) return x.IsNegative() ? SignedZero(false) : SignedInfinity(false);
  // The midpoints beside 1 are further away.
  if (exponent < -66) return SignedOne(false);
  return CorrectlyRounded(ExpOf(Wide(FromBits(x)) * kLn2), kHalfWidth,
                          [x] { return Exp2InDoubt(x); });
}

[[gnu::always_inline]] inline Binary80 Exp2Kernel(Binary80 x) {
  const int exponent = x.Exponent() - kExponentBias;
  if (static_cast<unsigned>(exponent + 16) >= 16 + 15 || x.significand < kTopBit) [[unlikely]]
    return Exp2OfUnusual(x);
  // x 2^16 = k + fraction 2^-64, exactly.
  const std::uint64_t sign = x.IsNegative() ? ~std::uint64_t{0} : 0;
  const std::uint64_t fraction = ((x.significand << (exponent + 17)) ^ sign) - sign;
  const std::uint64_t whole = (x.significand >> (47 - exponent)) ^ sign;
  const auto k = static_cast<std::int64_t>(whole + (fraction == 0 ? sign & 1 : 0));
  return CorrectlyRounded(ExpOfReduced({k, MultiplyHigh(kLn2.mantissa, fraction)}), kHalfWidth,
                          [x] { return Exp2InDoubt(x); });
}

}  // namespace

Extended Exp2(Extended x) noexcept {
  return FromBits(Exp2Kernel(BitsOf(x)));
}
void Exp2(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return Exp2Kernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals
