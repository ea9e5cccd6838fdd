#include "qorvex/base/special/symmetric_beta.h"

#include <cmath>
#include <cstdint>
#include <optional>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/exact_binomial.h"

namespace qorvex::special {

namespace {

bool IsWhole(Extended x) {
  return x == std::trunc(x);
}

Odds Exchanged(const Odds& odds) {
  return {odds.against, odds.in_favour};
}

// For a whole shape a of few terms and a whole b: the upper tail is the probability of fewer than a
// successes in a + b - 1 trials, of which at least b fail. Nothing where 1 minus it has too
// few digits.
std::optional<Tails> SumTails(Extended a, Extended b, ExtendedPair x, ExtendedPair y) {
  constexpr Extended most_terms = 16;
  if (!(a <= most_terms && a + b <= kExactTrials && IsWhole(a) && IsWhole(b))) return std::nullopt;
  const auto failures = static_cast<std::uint64_t>(b);
  const auto n = static_cast<std::uint64_t>(a) + failures - 1;
  ExtendedPair ways;
  ExtendedPair power_of_x = 1;
  for (std::uint64_t k = 0; k + failures <= n; ++k) {
    ways = ways * y + ExactCoefficient(n, k) * power_of_x;
    power_of_x = power_of_x * x;
  }
  const Binary upper = MakeBinary(ways) * WholePower(y, failures);
  if (upper.exponent < 0) return Tails(Tail::kUpper, ToScaled(upper));
  const ExtendedPair rest = 1 - TimesPowerOf2(upper.mantissa, static_cast<int>(upper.exponent));
  constexpr Extended least_rest = 1e-12L;
  if (!(rest.hi > least_rest)) return std::nullopt;
  return Tails(Tail::kLower, Scaled{rest.hi, ExtendedPair()});
}

// The upper tail is y^b for a first shape of 1.
Tails PowerTails(Extended b, ExtendedPair x, ExtendedPair y) {
  const Scaled upper = Power(y, b);
  if (upper.exponent.hi < -0.7L) {
    const bool whole = IsWhole(b);
    return {Tail::kUpper, whole ? ToScaled(WholePower(y, static_cast<std::uint64_t>(b))) : upper};
  }
  // Close to 1, y has few digits of 1 - y.
  const Extended log_upper = x.hi < 0x1p-10L ? b * Log1p(-x.hi) : upper.exponent.hi;
  return {Tail::kLower, Scaled{-Expm1(log_upper), ExtendedPair()}};
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
  if (a == b && even) return {Tail::kLower, Scaled{0.5L, ExtendedPair()}};

  const ExtendedPair sum = odds.in_favour + odds.against;
  const ExtendedPair x = odds.in_favour / sum;
  const ExtendedPair y = odds.against / sum;
  // Beyond, pairs come too close to the end of the format.
  constexpr Extended least = 1e-4900L;
  if (x.hi > least && y.hi > least) {
    if (const auto tails = SumTails(a, b, x, y)) return *tails;
    if (const auto tails = SumTails(b, a, y, x)) return tails->Mirrored();
    if (a == 1) return PowerTails(b, x, y);
    if (b == 1) return PowerTails(a, y, x).Mirrored();
  }
  return beta_.At(odds);
}

Extended SymmetricBeta::Density(const Odds& odds) const {
  const Extended a = beta_.A();
  const Extended b = beta_.B();
  const Odds ordered = is_exchanged_ ? Exchanged(odds) : odds;
  const Extended n = a + b - 2;
  if (IsWhole(a) && IsWhole(b) && HasExactCoefficient(n, a - 1)) {
    const Binary probability =
        ExactProbability(static_cast<std::uint64_t>(n), static_cast<std::uint64_t>(a - 1),
                         ordered.in_favour, ordered.against);
    return ToScaled(MakeBinary(n + 1) * probability).Value();
  }
  return beta_.Density(ordered, -1, -1).Value();
}

}  // namespace qorvex::special
