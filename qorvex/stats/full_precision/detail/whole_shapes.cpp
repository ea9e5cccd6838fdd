#include "qorvex/stats/full_precision/detail/whole_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace qorvex::full_precision::detail {

namespace {

// The factorial of the largest is 1e504, so that products of them stay in range.
constexpr std::size_t kFactorials = 256;
constexpr auto kFactorial = [] {
  std::array<ExtendedPair, kFactorials> factorials{};
  ExtendedPair product = 1;
  for (std::size_t i = 0; i < kFactorials; ++i) {
    factorials[i] = product;
    product = product * static_cast<Extended>(i + 1);
  }
  return factorials;
}();

bool IsWhole(Extended x) {
  return x == std::trunc(x);
}

ExtendedPair TimesPowerOf2(ExtendedPair x, int exponent) {
  return {std::ldexp(x.hi, exponent), std::ldexp(x.lo, exponent)};
}

// mantissa * 2^exponent, which may be far beyond the format. The mantissa is in [1/2, 1), and the
// exponent a whole number.
struct Binary {
  ExtendedPair mantissa;
  Extended exponent;
};

Binary MakeBinary(ExtendedPair x, Extended exponent = 0) {
  int shift = 0;
  std::frexp(x.hi, &shift);
  return {TimesPowerOf2(x, -shift), exponent + static_cast<Extended>(shift)};
}

Binary operator*(const Binary& a, const Binary& b) {
  return MakeBinary(a.mantissa * b.mantissa, a.exponent + b.exponent);
}

Scaled ToScaled(const Binary& x) {
  using Limits = std::numeric_limits<Extended>;
  if (x.exponent >= Limits::min_exponent && x.exponent <= Limits::max_exponent)
    return {std::ldexp(x.mantissa.hi, static_cast<int>(x.exponent)), ExtendedPair()};
  return {x.mantissa.hi, Ln(2) * x.exponent};
}

// By squaring, off by about n 2^-122 of itself: what has 64 bits is exact.
Binary WholePower(ExtendedPair x, std::uint64_t n) {
  Binary power = MakeBinary(1);
  for (Binary square = MakeBinary(x); n > 0; n /= 2) {
    if (n % 2 == 1) power = power * square;
    if (n > 1) square = square * square;
  }
  return power;
}

bool HasExactCoefficient(Extended n, Extended k) {
  return n < kFactorials || k == 0 || k == n;
}

ExtendedPair ExactCoefficient(std::uint64_t n, std::uint64_t k) {
  if (k == 0 || k == n) return 1;
  return kFactorial[n] / (kFactorial[k] * kFactorial[n - k]);
}

Binary ExactProbability(std::uint64_t n, std::uint64_t k, ExtendedPair p, ExtendedPair q) {
  return MakeBinary(ExactCoefficient(n, k)) * WholePower(p, k) * WholePower(q, n - k);
}

// For a whole shape a of few terms and a whole b: the upper tail is the probability of fewer than a
// successes in a + b - 1 trials, of which at least b fail. False where it leaves too little of 1.
bool SumTails(Extended a, Extended b, ExtendedPair x, ExtendedPair y, Tails& tails) {
  constexpr Extended most_terms = 16;
  if (!(a <= most_terms && a + b <= kFactorials && IsWhole(a) && IsWhole(b))) return false;
  const auto failures = static_cast<std::uint64_t>(b);
  const auto n = static_cast<std::uint64_t>(a) + failures - 1;
  ExtendedPair ways;
  ExtendedPair power_of_x = 1;
  for (std::uint64_t k = 0; k + failures <= n; ++k) {
    ways = ways * y + ExactCoefficient(n, k) * power_of_x;
    power_of_x = power_of_x * x;
  }
  const Binary upper = MakeBinary(ways) * WholePower(y, failures);
  if (upper.exponent < 0) {
    tails = {Tail::kUpper, ToScaled(upper)};
    return true;
  }
  const ExtendedPair rest = 1 - TimesPowerOf2(upper.mantissa, static_cast<int>(upper.exponent));
  constexpr Extended least_rest = 1e-12L;
  tails = {Tail::kLower, Scaled{rest.hi, ExtendedPair()}};
  return rest.hi > least_rest;
}

// The upper tail is y^b for a first shape of 1.
Tails PowerTails(Extended b, ExtendedPair x, ExtendedPair y) {
  const Scaled upper = Power(y, b);
  if (upper.exponent.hi < -0.7L) {
    const bool whole = IsWhole(b);
    return {Tail::kUpper, whole ? ToScaled(WholePower(y, static_cast<std::uint64_t>(b))) : upper};
  }
  // Close to 1, y has few digits of what it leaves.
  const Extended log_upper = x.hi < 0x1p-10L ? b * std::log1p(-x.hi) : upper.exponent.hi;
  return {Tail::kLower, Scaled{-std::expm1(log_upper), ExtendedPair()}};
}

}  // namespace

Scaled Coefficient(std::int64_t n, std::int64_t k) {
  if (HasExactCoefficient(static_cast<Extended>(n), static_cast<Extended>(k))) {
    const auto exact =
        ExactCoefficient(static_cast<std::uint64_t>(n), static_cast<std::uint64_t>(k));
    return {exact.hi, ExtendedPair()};
  }
  const auto factorial = [](std::int64_t i) { return FactorialOf(static_cast<Extended>(i)); };
  const std::int64_t less = std::min(k, n - k);
  return factorial(n) / factorial(less) / factorial(n - less);
}

Scaled BinomialProbability(std::uint32_t n, std::uint32_t k, ExtendedPair p, ExtendedPair q) {
  if (HasExactCoefficient(n, k)) return ToScaled(ExactProbability(n, k, p, q));
  return Coefficient(n, k) * Power(p, k) * Power(q, n - k);
}

Tails BetaTails(Extended a, Extended b, const Odds& odds) {
  if (a > b) return BetaTails(b, a, {odds.against, odds.in_favour}).Mirrored();
  const bool even = odds.in_favour.hi == odds.against.hi && odds.in_favour.lo == odds.against.lo;
  if (a == b && even) return {Tail::kLower, Scaled{0.5L, ExtendedPair()}};

  const ExtendedPair sum = odds.in_favour + odds.against;
  const ExtendedPair x = odds.in_favour / sum;
  const ExtendedPair y = odds.against / sum;
  // Where pairs are not near the end of the format.
  constexpr Extended least = 1e-4900L;
  if (x.hi > least && y.hi > least) {
    Tails tails = Unknown();
    if (SumTails(a, b, x, y, tails)) return tails;
    if (SumTails(b, a, y, x, tails)) return tails.Mirrored();
    if (a == 1) return PowerTails(b, x, y);
    if (b == 1) return PowerTails(a, y, x).Mirrored();
  }
  return RegularisedBeta(a, b).At(odds);
}

Extended BetaDensity(Extended a, Extended b, const Odds& odds) {
  if (a > b) return BetaDensity(b, a, {odds.against, odds.in_favour});
  const Extended n = a + b - 2;
  if (IsWhole(a) && IsWhole(b) && HasExactCoefficient(n, a - 1)) {
    const Binary probability =
        ExactProbability(static_cast<std::uint64_t>(n), static_cast<std::uint64_t>(a - 1),
                         odds.in_favour, odds.against);
    return ToScaled(MakeBinary(n + 1) * probability).Value();
  }
  return RegularisedBeta(a, b).Density(odds, -1, -1).Value();
}

}  // namespace qorvex::full_precision::detail
