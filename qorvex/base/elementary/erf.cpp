// Erf and Erfc.
//
// No exact case but erf(0) and erfc(0) is known; any other would have to agree with a midpoint in
// 200 bits by chance.

#include "qorvex/base/elementary/detail/erf_wide.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

using namespace elementary;

namespace {

// Above 2^-90, the error of the first stage.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 39;
// From 2^7 on erfc is below half the smallest number.
constexpr int kFarExponent = 7;

// 2 / sqrt(pi).
const Wide256 kTwoOverRootPi{
    {0x39a15830cce620b0, 0x1409a0ebac3e7517, 0x71d48a7f6bfec344, 0x906eba8214db688d}, 0};

// erf(x) / (2 / sqrt(pi)) for 0 < x < 4: e^(-x^2) (x + 2/3 x^3 + 2/3 2/5 x^5 + ...), where all
// terms are positive.
Wide256 ErfBySeries(const Wide256& x, const Wide256& square) {
  Wide256 term = x;
  Wide256 sum = x;
  const Wide256 factor = ScaledBy(square, 1);
  for (std::uint64_t n = 3; term.exponent > sum.exponent - 256; n += 2) {
    term = DividedBy(term * factor, n);
    sum = sum + term;
  }
  return sum * Exp(-square);
}

// erfc(x) / (2 / sqrt(pi)) for x >= 4: e^(-x^2) / 2 over the continued fraction x + 1/2 / (x + 2/2
// / (x + 3/2 / (x + ...))). Cutting it after this many terms leaves a relative error below 2^-226,
// the most near x = 14.5 (compared with erfc in 600 bits for x^2 up to 17000). Numerators and
// denominators of the approximations follow one recurrence.
Wide256 ErfcByFraction(const Wide256& x, const Wide256& square) {
  const std::int64_t terms = 4000 / NearestInteger(square) + 30;
  Wide256 numerator = 1;
  Wide256 denominator = x;
  for (std::int64_t n = terms; n > 0; --n) {
    // denominator / numerator becomes x + n / 2 / (denominator / numerator).
    const Wide256 next = x * denominator + ScaledBy(Wide256(n) * numerator, -1);
    numerator = denominator;
    denominator = next;
  }
  return ScaledBy(Exp(-square) * numerator / denominator, -1);
}

// erf(x), or erfc(x) if complementary, for x other than 0. Relative error below 2^-203: where 1 is
// reduced by erf(4), 26 bits of the 2^-230 of the exponential cancel.
[[gnu::noinline]] Wide256 SecondStage(Normalised number, bool negative, bool complementary) {
  const Wide256 x(Wide{Join(number.significand, 0), number.exponent});
  const Wide256 square = x * x;
  const bool is_erfc = number.exponent >= 2;
  const Wide256 part =
      kTwoOverRootPi * (is_erfc ? ErfcByFraction(x, square) : ErfBySeries(x, square));
  if (complementary) {
    if (is_erfc) return negative ? 2 - part : part;
    return negative ? 1 + part : 1 - part;
  }
  const Wide256 erf = is_erfc ? 1 - part : part;
  return negative ? -erf : erf;
}

// What the kernels leave: NaN, arguments that are not normal, and far ones.
[[gnu::noinline]] Binary80 ErfOfRest(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (x.Exponent() != 0) return SignedOne(x.IsNegative());
  if (x.significand == 0) return x;
  return NearestBits(SecondStage(Normalise(x), x.IsNegative(), false));
}
[[gnu::noinline]] Binary80 ErfcOfRest(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (x.Exponent() == 0) return SignedOne(false);
  return x.IsNegative() ? Binary80{kTopBit, kExponentBias + 1} : SignedZero(false);
}

inline bool IsUsual(Binary80 x) {
  return IsNormal(x) && x.Exponent() < kExponentBias + kFarExponent;
}

template <bool complementary>
[[gnu::always_inline]] inline Binary80 Kernel(Binary80 x) {
  if (!IsUsual(x)) return complementary ? ErfcOfRest(x) : ErfOfRest(x);
  const Normalised number{x.significand, x.Exponent() - kExponentBias};
  const Wide wide{Join(number.significand, 0), number.exponent, x.IsNegative()};
  return CorrectlyRounded(complementary ? ErfcWide(wide) : ErfWide(wide), kHalfWidth,
                          [=] { return SecondStage(number, wide.negative, complementary); });
}

}  // namespace

Extended Erf(Extended x) noexcept {
  return FromBits(Kernel<false>(BitsOf(x)));
}
Extended Erfc(Extended x) noexcept {
  return FromBits(Kernel<true>(BitsOf(x)));
}
void Erf(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return Kernel<false>(t); });
}
void Erfc(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return Kernel<true>(t); });
}

}  // namespace qorvex::inline QorvexGlobals
