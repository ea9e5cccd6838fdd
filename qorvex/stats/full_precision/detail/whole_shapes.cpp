#include "qorvex/stats/full_precision/detail/whole_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

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

// So that 255 factors stay in range.
constexpr Extended kLeastShare = 1e-15L;

bool AreFew(Extended n, ExtendedPair p, ExtendedPair q) {
  return n < kFactorials && p.hi >= kLeastShare && q.hi >= kLeastShare;
}

bool IsWhole(Extended x) {
  return x == std::trunc(x);
}

ExtendedPair WholePower(ExtendedPair x, std::size_t n) {
  ExtendedPair power = 1;
  for (; n > 0; n /= 2) {
    if (n % 2 == 1) power = power * x;
    if (n > 1) x = x * x;
  }
  return power;
}

ExtendedPair CoefficientOfFew(std::size_t n, std::size_t k) {
  return kFactorial[n] / (kFactorial[k] * kFactorial[n - k]);
}

ExtendedPair ProbabilityOfFew(std::size_t n, std::size_t k, ExtendedPair p, ExtendedPair q) {
  return CoefficientOfFew(n, k) * WholePower(p, k) * WholePower(q, n - k);
}

// For whole shapes a, the smaller one, and b: the upper tail is the probability of fewer than a
// successes in a + b - 1 trials. False where it leaves too little of 1.
bool SumTails(Extended a, Extended b, ExtendedPair x, ExtendedPair y, Tails& tails) {
  constexpr Extended most_terms = 16;
  if (!(a <= most_terms && IsWhole(a) && IsWhole(b) && AreFew(a + b - 1, x, y))) return false;
  const auto n = static_cast<std::size_t>(a + b - 1);
  auto k = static_cast<std::size_t>(a - 1);
  ExtendedPair term = ProbabilityOfFew(n, k, x, y);
  ExtendedPair sum = term;
  for (const ExtendedPair ratio = y / x; k > 0; --k) {
    term = term * ratio * static_cast<Extended>(k) / static_cast<Extended>(n - k + 1);
    sum = sum + term;
  }
  if (sum.hi <= 0.5L) {
    tails = {Tail::kUpper, Scaled{sum.hi, ExtendedPair()}};
    return true;
  }
  const ExtendedPair rest = ExtendedPair(1) - sum;
  constexpr Extended least_rest = 1e-12L;
  tails = {Tail::kLower, Scaled{rest.hi, ExtendedPair()}};
  return rest.hi > least_rest;
}

// The upper tail is y^b for a first shape of 1.
Tails PowerTails(Extended b, ExtendedPair x, ExtendedPair y) {
  const Scaled upper = Power(y, b);
  if (upper.exponent.hi < -0.7L) return {Tail::kUpper, upper};
  // Close to 1, y has few digits of what it leaves.
  const Extended log_upper = x.hi < 0x1p-10L ? b * std::log1p(-x.hi) : upper.exponent.hi;
  return {Tail::kLower, Scaled{-std::expm1(log_upper), ExtendedPair()}};
}

}  // namespace

Scaled Coefficient(std::int64_t n, std::int64_t k) {
  if (n < static_cast<std::int64_t>(kFactorials)) {
    return {CoefficientOfFew(static_cast<std::size_t>(n), static_cast<std::size_t>(k)).hi,
            ExtendedPair()};
  }
  const auto factorial = [](std::int64_t i) { return FactorialOf(static_cast<Extended>(i)); };
  const std::int64_t less = std::min(k, n - k);
  return factorial(n) / factorial(less) / factorial(n - less);
}

Scaled BinomialProbability(std::uint32_t n, std::uint32_t k, ExtendedPair p, ExtendedPair q) {
  if (AreFew(n, p, q)) return {ProbabilityOfFew(n, k, p, q).hi, ExtendedPair()};
  return Coefficient(n, k) * Power(p, k) * Power(q, n - k);
}

Tails BetaTails(Extended a, Extended b, const Odds& odds) {
  if (a > b) return BetaTails(b, a, {odds.against, odds.in_favour}).Mirrored();
  const bool even = odds.in_favour.hi == odds.against.hi && odds.in_favour.lo == odds.against.lo;
  if (a == b && even) return {Tail::kLower, Scaled{0.5L, ExtendedPair()}};

  const ExtendedPair sum = odds.in_favour + odds.against;
  const ExtendedPair x = odds.in_favour / sum;
  const ExtendedPair y = odds.against / sum;
  Tails tails = Unknown();
  if (SumTails(a, b, x, y, tails)) return tails;
  // Where pairs are not near the end of the format.
  constexpr Extended least = 1e-4900L;
  const bool in_range = x.hi > least && y.hi > least;
  if (a == 1 && in_range) return PowerTails(b, x, y);
  if (b == 1 && in_range) return PowerTails(a, y, x).Mirrored();
  return RegularisedBeta(a, b).At(odds);
}

Extended BetaDensity(Extended a, Extended b, const Odds& odds) {
  if (a > b) return BetaDensity(b, a, {odds.against, odds.in_favour});
  const auto& [x, y] = odds;
  if (IsWhole(a) && IsWhole(b) && AreFew(a + b - 2, x, y)) {
    const auto of_x = static_cast<std::size_t>(a - 1);
    const auto of_y = static_cast<std::size_t>(b - 1);
    return (ExtendedPair(a + b - 1) * ProbabilityOfFew(of_x + of_y, of_x, x, y)).hi;
  }
  return RegularisedBeta(a, b).Density(odds, -1, -1).Value();
}

}  // namespace qorvex::full_precision::detail
