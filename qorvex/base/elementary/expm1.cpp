#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// 1 / 3!, 1 / 5! ... 1 / 11!, and 1 / 2!, 1 / 4! ... 1 / 10!, in units of 2^-127; the last two of
// each in units of 2^-63.
constexpr std::uint64_t kOddFactorials[8] = {
    0x1555555555555555, 0x5555555555555555, 0x0111111111111111, 0x1111111111111111,
    0x0006806806806806, 0x8068068068068068, 0x0000171de3a556c7, 0x00000035cc8acfeb};
constexpr std::uint64_t kEvenFactorials[8] = {
    0x4000000000000000, 0x0000000000000000, 0x0555555555555555, 0x5555555555555555,
    0x002d82d82d82d82d, 0x82d82d82d82d82d8, 0x0000d00d00d00d01, 0x0000024fc9f6ef14};

// a0 + a1 y + ... + a4 y^4 in units of 2^-127, for y < 2^-16 in units of 2^-128; wrong by less than
// 5 units.
[[gnu::always_inline]] inline UInt128 Series(UInt128 y, const std::uint64_t (&a)[8]) {
  const UInt128 rest = Join(a[4], a[5]) + Multiply(High(y), a[6] + MultiplyHigh(High(y), a[7]));
  return Join(a[0], a[1]) + MultiplyHighOfSmall(y, Join(a[2], a[3]) + MultiplyHighOfSmall(y, rest));
}

// e^x - 1 = x (1 + x^2 / 3! + x^4 / 5! ... + x (1 / 2! + x^2 / 4! + x^4 / 6! ...)) for |x| < 2^-8.
// Relative error: 2^-116.6 by breaking off before x^12 / 12!, and 16 units of 2^-127.
[[gnu::always_inline]] inline Wide Expm1BySeries(const Wide& x) {
  const UInt128 fixed = ScaledDown(x.mantissa, -1 - x.exponent);  // of 2^-128
  const UInt128 square = MultiplyHighOfSmall(fixed, fixed);
  const UInt128 odd = MultiplyHighOfSmall(square, Series(square, kOddFactorials));
  const UInt128 even = MultiplyHighOfSmall(fixed, Series(square, kEvenFactorials));
  const UInt128 one = UInt128{1} << 127;
  const UInt128 factor = x.negative ? one + odd - even : one + odd + even;
  return NormalisedTop(MultiplyHigh(x.mantissa, factor), x.exponent + 1, x.negative);
}

// e^x - 1 from e^x, for |x| >= 2^-8, where the relative error of e^x, 2^-111, becomes 2^-102.9.
[[gnu::always_inline]] inline Wide MinusOne(const Wide& power, bool negative) {
  const std::uint64_t sign = negative ? ~std::uint64_t{0} : 0;
  const auto exponent = static_cast<std::uint64_t>(power.exponent);
  const std::uint64_t distance = (exponent ^ sign) - sign;
  if (distance >= 64) [[unlikely]]
    return power - kOne;
  // At the scale of the larger of e^x and 1, where 1 fits into the high word; by masks, because
  // signs may be random. A negative difference is turned by complement.
  const UInt128 scaled = ShiftedRight(power.mantissa, static_cast<int>(distance & sign));
  const std::uint64_t one = kTopBit >> (distance & ~sign);
  const UInt128 difference = Join((High(scaled) - one) ^ sign, Low(scaled) ^ sign);
  return NormalisedTop(difference, static_cast<std::int64_t>(exponent & ~sign), negative);
}

// The second stage. e^x is transcendental unless x = 0 (Lindemann 1882), so there are no midpoints.
[[gnu::noinline]] Wide256 Expm1InDoubt(Binary80 x) {
  return Expm1(Wide256(FromBits(x)));
}

// All x but those from 2^-65 to 2^14 in absolute value.
[[gnu::noinline]] Binary80 Expm1OfUnusual(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (x.Exponent() > kExponentBias) return x.IsNegative() ? SignedOne(true) : SignedInfinity(false);
  // The relative distance of e^x - 1 from x is less than 2^-66, that of the midpoints at least
  // 2^-65.
  return Canonical(x);
}

[[gnu::always_inline]] inline Binary80 Expm1Kernel(Binary80 x) {
  const int exponent = x.Exponent() - kExponentBias;
  if (static_cast<unsigned>(exponent + 65) >= 65 + 14 || x.significand < kTopBit) [[unlikely]]
    return Expm1OfUnusual(x);
  const bool negative = x.IsNegative();
  constexpr std::uint64_t half_width = 1 << 26;
  return CorrectlyRounded(exponent < -8
                              ? Expm1BySeries({Join(x.significand, 0), exponent, negative})
                              : MinusOne(ExpOf(x.significand, exponent, negative), negative),
                          half_width, [x] { return Expm1InDoubt(x); });
}

}  // namespace

Wide Expm1Wide(const Wide& x) {
  if (x.IsZero()) return x;
  return x.exponent < -8 ? Expm1BySeries(x) : MinusOne(ExpWide(x), x.negative);
}

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

Extended Expm1(Extended x) noexcept {
  return elementary::FromBits(elementary::Expm1Kernel(elementary::BitsOf(x)));
}
void Expm1(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::Expm1Kernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals
