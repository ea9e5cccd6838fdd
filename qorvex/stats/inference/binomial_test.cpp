#include "qorvex/stats/inference/binomial_test.h"

#include <cmath>
#include <utility>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special/binomial.h"
#include "qorvex/stats/distributions/binomial.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// The probabilities of less than k and of at least k.
Tails TailsBelow(const BinomialDistribution& binomial, std::uint64_t k) {
  if (k == 0) return {Tail::kLower, Scaled{0, ExtendedPair()}};
  return binomial.At(static_cast<std::uint32_t>(k - 1));
}

// The probability of all counts that are no more likely than the observed one, for 0 < p < 1.
Scaled TwoSided(const BinomialDistribution& binomial, std::uint32_t observed) {
  const Extended p = binomial.SuccessProbability();
  const std::uint64_t n = binomial.Trials();
  const ExtendedPair mean = special::ExactProduct(static_cast<Extended>(n), p);
  const bool is_low = (ExtendedPair(static_cast<Extended>(observed)) - mean).hi < 0;
  const auto log_probability = [&](std::uint64_t k) {
    return special::Ln(special::BinomialProbability(
        binomial.Trials(), static_cast<std::uint32_t>(k), p, special::ExactSum(1, -p)));
  };
  const ExtendedPair bound = log_probability(observed) + ExtendedPair(Log1p(1e-7L));
  const auto is_as_unlikely = [&](std::uint64_t k) { return (log_probability(k) - bound).hi <= 0; };
  // On the other side of the mean the probabilities fall with the distance from it.
  std::uint64_t first = 0;
  std::uint64_t last = static_cast<std::uint64_t>(std::floor(mean.hi)) + 1;
  if (is_low) {
    first = static_cast<std::uint64_t>(std::ceil(mean.hi));
    last = n + 1;
  }
  while (first < last) {
    const std::uint64_t middle = first + (last - first) / 2;
    if (is_as_unlikely(middle) != is_low) {
      first = middle + 1;
    } else {
      last = middle;
    }
  }
  const Tails beyond = TailsBelow(binomial, first);
  if (is_low) {
    return binomial.At(observed).ScaledProbability(Tail::kLower) +
           beyond.ScaledProbability(Tail::kUpper);
  }
  return TailsBelow(binomial, observed).ScaledProbability(Tail::kUpper) +
         beyond.ScaledProbability(Tail::kLower);
}

}  // namespace

TestResult BinomialTest(std::uint64_t successes, std::uint64_t trials, Extended p,
                        Alternative alternative) {
  if (successes > trials || !std::in_range<std::uint32_t>(trials))
    RaiseMathError(rsBinomDistInvalid);
  const auto observed = static_cast<std::uint32_t>(successes);
  const BinomialDistribution binomial(p, static_cast<std::uint32_t>(trials));
  TestResult result{.statistic = static_cast<Extended>(successes)};
  if (std::isnan(p)) return result;
  switch (alternative) {
    case Alternative::kLess:
      return WithTails(result, binomial.At(observed), alternative);
    case Alternative::kGreater:
      return WithTails(result, TailsBelow(binomial, observed), alternative);
    case Alternative::kTwoSided:
      break;
  }
  if (p == 0 || p == 1) {
    const bool is_certain = successes == (p == 0 ? 0 : trials);
    return WithP(result, Scaled{is_certain ? 1.0L : 0.0L, ExtendedPair()});
  }
  return WithP(result, TwoSided(binomial, observed));
}

}  // namespace qorvex
