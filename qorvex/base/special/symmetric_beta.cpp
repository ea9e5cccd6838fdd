#include "qorvex/base/special/symmetric_beta.h"

#include <cmath>
#include <cstdint>
#include <optional>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/exact_binomial.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

using elementary::Nearest;

namespace {

bool IsWhole(Extended x) {
  return x == std::trunc(x);
}

Odds Exchanged(const Odds& odds) {
  return {odds.against, odds.in_favour};
}

// The tails are a sum of at most 16 terms.
bool IsShortSum(Extended a, Extended b) {
  constexpr Extended most_terms = 16;
  return a <= most_terms && a + b <= kExactTrials && IsWhole(a) && IsWhole(b);
}

bool HasClosedForm(Extended a, Extended b) {
  return a == 1 || b == 1 || IsShortSum(a, b) || IsShortSum(b, a);
}

// For a whole shape a of few terms and a whole b: the upper tail is the probability of fewer than a
// successes in a + b - 1 trials, of which at least b fail. Nothing where 1 minus it has too
// few digits.
std::optional<Tails> SumTails(Extended a, Extended b, const Wide& x, const Wide& y) {
  if (!IsShortSum(a, b)) return std::nullopt;
  const auto failures = static_cast<std::uint64_t>(b);
  const auto n = static_cast<std::uint64_t>(a) + failures - 1;
  Wide ways;
  Wide power_of_x = kOne;
  for (std::uint64_t k = 0; k + failures <= n; ++k) {
    ways = ways * y + ExactCoefficient(n, k) * power_of_x;
    power_of_x = power_of_x * x;
  }
  const Wide upper = ways * WholePower(y, failures);
  if (IsSmaller(upper, kHalf)) return Tails{Tail::kUpper, MakeScaled(upper)};
  const Wide rest = kOne - upper;
  constexpr Extended least_rest = 1e-12L;
  if (!(Nearest(rest) > least_rest)) return std::nullopt;
  return Tails{Tail::kLower, MakeScaled(rest)};
}

// The upper tail is y^b for a first shape of 1.
Tails PowerTails(Extended b, const Wide& x, const Wide& y) {
  // Close to 1, y has few digits of 1 - y.
  constexpr std::int64_t small = -10;
  const Wide ln_y = x.exponent < small ? elementary::Log1pWide(-x) : elementary::LogWide(y);
  const Wide ln_upper = Wide(b) * ln_y;
  const Scaled upper = MakeScaled(kOne, ln_upper);
  if (upper.Value() > 0.5L) return {Tail::kLower, MakeScaled(-elementary::Expm1Wide(ln_upper))};
  return {Tail::kUpper, IsWhole(b) && HasWholePower(y, b)
                            ? MakeScaled(WholePower(y, static_cast<std::uint64_t>(b)))
                            : upper};
}

}  // namespace

SymmetricBeta::SymmetricBeta(Extended a, Extended b)
    : is_exchanged_(a > b), beta_(is_exchanged_ ? b : a, is_exchanged_ ? a : b) {}

SymmetricBeta::SymmetricBeta(const RegularisedBeta& beta)
    : is_exchanged_(beta.A() > beta.B()),
      beta_(is_exchanged_ ? RegularisedBeta(beta.B(), beta.A()) : beta) {}

Tails SymmetricBeta::At(const Odds& odds) const {
  return is_exchanged_ ? OrderedAt(Exchanged(odds)).Mirrored() : OrderedAt(odds);
}

Tails SymmetricBeta::OrderedAt(const Odds& odds) const {
  const Extended a = beta_.A();
  const Extended b = beta_.B();
  const bool even = odds.in_favour.hi == odds.against.hi && odds.in_favour.lo == odds.against.lo;
  if (a == b && even) return {Tail::kLower, 0.5L};

  if (!HasClosedForm(a, b)) return beta_.At(odds);
  const Wide in_favour(odds.in_favour);
  const Wide against(odds.against);
  const Wide sum = in_favour + against;
  const Wide x = in_favour / sum;
  const Wide y = against / sum;
  if (const auto tails = SumTails(a, b, x, y)) return *tails;
  if (const auto tails = SumTails(b, a, y, x)) return tails->Mirrored();
  if (a == 1) return PowerTails(b, x, y);
  if (b == 1) return PowerTails(a, y, x).Mirrored();
  return beta_.At(odds);
}

Extended SymmetricBeta::Density(const Odds& odds) const {
  const Extended a = beta_.A();
  const Extended b = beta_.B();
  const Odds ordered = is_exchanged_ ? Exchanged(odds) : odds;
  const Extended n = a + b - 2;
  const Wide x(ordered.in_favour);
  const Wide y(ordered.against);
  // From 256 trials on there is no success.
  if (IsWhole(a) && IsWhole(b) && HasExactCoefficient(n, a - 1) && HasWholePower(y, n)) {
    const Wide probability =
        ExactProbability(static_cast<std::uint64_t>(n), static_cast<std::uint64_t>(a - 1), x, y);
    return Nearest(Wide(n + 1) * probability);
  }
  return (beta_.LogOddsDensity(ordered) / MakeScaled(x * y)).Value();
}

}  // namespace qorvex::special
