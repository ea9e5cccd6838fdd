#include "qorvex/base/special/detail/gamma_wide.h"

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

using elementary::High;
using elementary::Join;
using elementary::LogWide;
using elementary::MultiplyHigh;
using elementary::Nearest;
using elementary::NormalisedWide;
using elementary::UInt128;

namespace {

constexpr std::size_t kWideTerms = 6;
constexpr std::size_t kShortTerms = 6;
// The coefficients of a piece of 1/64: six of 128 bits at scale 2^128, six of 64 at 2^101.
constexpr std::uint64_t kGamma[64][2 * kWideTerms + kShortTerms] = {
#include "qorvex/base/elementary/detail/tables/gamma.inc"
};
constexpr std::uint64_t kStirlingWide[4][2] = {
#include "qorvex/base/elementary/detail/tables/stirling_wide.inc"
};
constexpr std::uint64_t kStirlingShort[10] = {
#include "qorvex/base/elementary/detail/tables/stirling_short.inc"
};

// From here on Stirling's series holds.
constexpr std::int64_t kStirlingFrom = 16;

// x 2^scale for 0 <= x < 2^(128 - scale), cut off.
UInt128 Fixed(const Wide& x, int scale) {
  const std::int64_t shift = 127 - scale - x.exponent;
  return shift < 128 ? x.mantissa >> shift : 0;
}

// (Gamma(x) - 1) / ((x - 1) (x - 2)) for u = 2 - x in [0, 1), at scale 2^128. Error: the polynomial
// 2^-96, the short part seven units of 2^-101, at most.
UInt128 Quotient(UInt128 u) {
  const std::uint64_t* const row = kGamma[u >> 122];
  const UInt128 h = u << 6;
  std::uint64_t tail = row[2 * kWideTerms + kShortTerms - 1];
  for (std::size_t k = kShortTerms - 1; k-- > 0;)
    tail = row[2 * kWideTerms + k] + MultiplyHigh(tail, High(h));
  UInt128 value = UInt128{tail} << 27;
  for (std::size_t k = kWideTerms; k-- > 0;)
    value = Join(row[2 * k], row[2 * k + 1]) + MultiplyHigh(value, h);
  return value;
}

// The largest integer that is not above |x| < 2^62, towards 0.
std::int64_t WholePart(const Wide& x) {
  if (x.IsZero() || x.exponent < 0) return 0;
  const auto whole = static_cast<std::int64_t>(x.mantissa >> (127 - x.exponent));
  return x.negative ? -whole : whole;
}

// x - n.
Wide Less(const Wide& x, std::int64_t n) {
  const Wide size = WholeNumber(static_cast<std::uint64_t>(n < 0 ? -n : n));
  return n < 0 ? x + size : x - size;
}

// Gamma(x) = factor (1 + rest) for |x| < 16, by Gamma(x + 1) = x Gamma(x) from or to [1, 2].
struct Shifted {
  explicit Shifted(const Wide& x) {
    std::int64_t whole = WholePart(x);
    if (x.negative) --whole;
    rest = GammaMinusOne(Less(x, whole));
    for (std::int64_t k = 1; k < whole; ++k) factor = factor * Less(x, k);
    if (whole >= 1) return;
    Wide divisor = x;
    for (std::int64_t k = 1; k <= -whole; ++k) divisor = divisor * Less(x, -k);
    factor = kOne / divisor;
  }
  [[nodiscard]] Wide Value() const { return factor * (kOne + rest); }

  Wide factor = kOne;
  Wide rest;
};

// sin(pi x) for x > 0, below 2^62. The sine of the leading 64 bits is corrected by the rest.
Wide SineOfPi(const Wide& x) {
  const std::int64_t whole = WholePart(x);
  Wide fraction = Less(x, whole);
  if (fraction.exponent == -1) fraction = kOne - fraction;
  const Wide angle = kWidePi * fraction;
  const Extended leading = Nearest(angle);
  const auto [sine, cosine] = elementary::SinCosWide(leading);
  const Wide value = sine + (angle - Wide(leading)) * cosine;
  return whole % 2 == 0 ? value : -value;
}

// ln Gamma(x) - (x - 1/2) ln x + x - ln(2 pi) / 2 for x >= 16: Stirling's series; relative error
// below 2^-91.
Wide StirlingSeries(const Wide& x) {
  const Wide reciprocal = kOne / x;
  // 2^7 / x^2 at scale 2^128.
  const UInt128 z = Fixed(reciprocal * reciprocal, 128 + 7);
  std::uint64_t tail = 0;
  for (std::size_t k = std::size(kStirlingShort); k-- > 0;)
    tail = kStirlingShort[k] - MultiplyHigh(tail, High(z));
  UInt128 value = UInt128{tail} << 26;
  for (std::size_t k = std::size(kStirlingWide); k-- > 0;)
    value = Join(kStirlingWide[k][0], kStirlingWide[k][1]) - MultiplyHigh(value, z);
  return NormalisedWide(value, -1) * reciprocal;
}

// Stirling's series at b + a minus that at b, for ln_growth = ln(1 + a / b): each term is a power
// of the argument, and changes by e^-(2k + 1) ln_growth - 1 of itself.
Wide StirlingDifference(const Wide& b, const Wide& ln_growth) {
  const Wide reciprocal = kOne / b;
  const Wide square = ScaledBy(reciprocal * reciprocal, 7);
  Wide sum;
  Wide power = reciprocal;
  const auto add = [&](std::size_t k, const Wide& size) {
    const Wide change = elementary::Expm1Wide(-(WholeNumber(2 * k + 1) * ln_growth));
    const Wide term = size * power * change;
    sum = sum + (k % 2 == 0 ? term : -term);
    power = power * square;
  };
  for (std::size_t k = 0; k < 4; ++k)
    add(k, NormalisedWide(Join(kStirlingWide[k][0], kStirlingWide[k][1]), -1));
  // Of the others 14 bits count less.
  for (std::size_t k = 0; k < std::size(kStirlingShort); ++k)
    add(k + 4, NormalisedWide(kStirlingShort[k], 127 - 102));
  return sum;
}

// ln Gamma(x) for x >= 16. Error: that of the logarithm times x - 1/2.
Wide LnGammaOfLarge(const Wide& x) {
  return (x - kHalf) * LogWide(x) - x + (kLnOfRootOf2Pi + StirlingSeries(x));
}

bool IsLarge(const Wide& x) {
  return x.exponent >= 4;
}
static_assert(kStirlingFrom == 1 << 4);

}  // namespace

Wide GammaMinusOne(const Wide& t) {
  const Wide u = kOne - t;
  if (t.IsZero() || u.IsZero()) return {};
  // 1 becomes the number before it.
  const UInt128 fixed = u.exponent < 0 ? Fixed(u, 128) : ~UInt128{0};
  return -(t * u * NormalisedWide(Quotient(fixed), -1));
}

Wide GammaWide(const Wide& x) {
  if (!IsLarge(x)) return Shifted(x).Value();
  if (!x.negative) return elementary::ExpWide(LnGammaOfLarge(x));
  // Gamma(-a) sin(pi a) Gamma(1 + a) = -pi
  const Wide a = -x;
  return -kWidePi / (SineOfPi(a) * elementary::ExpWide(LnGammaOfLarge(kOne + a)));
}

Wide LnFactorialWide(const Wide& a) {
  return (a + kHalf) * LogWide(a) - a + (kLnOfRootOf2Pi + StirlingSeries(a));
}

Scaled TemperedGamma(const Wide& a) {
  if (IsLarge(a)) return MakeScaled(kOne, StirlingSeries(a));
  // Gamma(a + 1) e^a / a^a / sqrt(2 pi a)
  return MakeScaled(a * GammaWide(a) / SquareRoot(ScaledBy(kWidePi, 1) * a), a - a * LogWide(a));
}

Wide LnGammaRatio(const Wide& b, const Wide& a) {
  // Gamma(b + a) / Gamma(b) is that at b + 1 divided by 1 + a / b.
  Wide large = b;
  Wide sum;
  for (; !IsLarge(large); large = large + kOne) sum = sum - elementary::Log1pWide(a / large);
  const Wide ln_growth = elementary::Log1pWide(a / large);
  return sum + ((large - kHalf) * ln_growth + a * (LogWide(large + a) - kOne) +
                StirlingDifference(large, ln_growth));
}

Wide LnGammaWide(const Wide& x) {
  if (IsLarge(x)) {
    if (!x.negative) return LnGammaOfLarge(x);
    const Wide a = -x;
    Wide sine = SineOfPi(a);
    sine.negative = false;
    return LogWide(kWidePi / sine) - LnGammaOfLarge(kOne + a);
  }
  const Shifted shifted(x);
  // From 1/2 to 3 the two logarithms keep the zeros at 1 and 2; below 1 the factor is 1 / x.
  if (!x.negative && x.exponent >= -1 && IsSmaller(x, kThree)) {
    const Wide ln_factor = x.exponent < 0 ? -LogWide(x) : LogWide(shifted.factor);
    return ln_factor + elementary::Log1pWide(shifted.rest);
  }
  Wide value = shifted.Value();
  value.negative = false;
  return LogWide(value);
}

}  // namespace qorvex::special
