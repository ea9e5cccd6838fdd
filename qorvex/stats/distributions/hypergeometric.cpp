#include "qorvex/stats/distributions/hypergeometric.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/elementary/detail/quotient.h"
#include "qorvex/base/special/binomial.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/counts.h"

namespace qorvex {

using namespace distributions;
using elementary::Wide;
using special::ExtendedPair;
using special::Scaled;

namespace {

// C(n, k) p^k q^(n - k) for p = share / whole, which cancels from the quotients below.
Scaled BinomialAt(std::int64_t n, std::int64_t k, std::int64_t share, std::int64_t whole) {
  const auto part_of_whole = [whole](std::int64_t part) {
    return ExtendedPair(static_cast<Extended>(part)) / static_cast<Extended>(whole);
  };
  return special::BinomialProbability(static_cast<std::uint32_t>(n), static_cast<std::uint32_t>(k),
                                      part_of_whole(share), part_of_whole(whole - share));
}

}  // namespace

HypergeometricDistribution::HypergeometricDistribution(std::uint32_t pop_size,
                                                       std::uint32_t sample_size,
                                                       std::uint32_t successes)
    : population_(pop_size), sample_(sample_size), successes_(successes) {
  if (sample_size > pop_size || successes > pop_size) RaiseMathError(rsHyperGeometricInvalid);
}

std::int64_t HypergeometricDistribution::Least() const {
  return std::max<std::int64_t>(0, sample_ + successes_ - population_);
}

std::int64_t HypergeometricDistribution::Most() const {
  return std::min(sample_, successes_);
}

Scaled HypergeometricDistribution::Probability(std::int64_t k) const {
  if (k < Least() || k > Most()) return 0;
  if (Least() == Most()) return 1;
  // Binomial probabilities of successes and failures in the sample, on condition of its size.
  return BinomialAt(successes_, k, sample_, population_) *
         BinomialAt(population_ - successes_, sample_ - k, sample_, population_) /
         BinomialAt(population_, sample_, sample_, population_);
}

Scaled HypergeometricDistribution::SumFrom(std::int64_t k, int step) const {
  Wide sum(1);
  Wide term(1);
  constexpr std::int64_t negligible = 70;
  const auto product = [](std::int64_t a, std::int64_t b) {
    return Wide(static_cast<Extended>(a)) * Wide(static_cast<Extended>(b));
  };
  // Each probability from the one before. The differences are counts of the drawn and of the
  // others, among the successes and among the failures.
  for (; k != (step > 0 ? Most() : Least()) && term.exponent >= sum.exponent - negligible;
       k += step) {
    const std::int64_t below = step > 0 ? k : k - 1;
    const Wide growing = product(successes_ - below, sample_ - below);
    const Wide shrinking = product(below + 1, population_ - successes_ - sample_ + below + 1);
    const Wide multiple = term * (step > 0 ? growing : shrinking);
    term = elementary::QuickQuotient(multiple, step > 0 ? shrinking : growing);
    sum = sum + term;
  }
  return special::MakeScaled(sum);
}

Extended HypergeometricDistribution::Pmf(std::uint32_t k) const {
  return Probability(k).Value();
}

Tails HypergeometricDistribution::At(std::uint32_t k) const {
  if (k < Least()) return BelowAll();
  if (k >= Most()) return AboveAll();
  if (static_cast<Extended>(k) < Mean()) return {Tail::kLower, SumFrom(k, -1) * Probability(k)};
  const std::int64_t next = std::int64_t{k} + 1;
  return {Tail::kUpper, SumFrom(next, 1) * Probability(next)};
}

std::uint32_t HypergeometricDistribution::Quantile(Tail tail, Extended p) const {
  RequireCountable(p);
  return SmallestCount(*this, tail, p);
}

Extended HypergeometricDistribution::Mean() const {
  return static_cast<Extended>(sample_) * static_cast<Extended>(successes_) /
         static_cast<Extended>(std::max<std::int64_t>(population_, 1));
}

Extended HypergeometricDistribution::Variance() const {
  if (Least() == Most()) return 0;
  const auto size = static_cast<Extended>(population_);
  return Mean() * static_cast<Extended>(population_ - successes_) / size *
         static_cast<Extended>(population_ - sample_) / (size - 1);
}

Extended HypergeometricDistribution::Skewness() const {
  if (Least() == Most()) return kNotANumber;
  const auto asymmetry = static_cast<Extended>(population_ - 2 * successes_) /
                         static_cast<Extended>(population_) *
                         static_cast<Extended>(population_ - 2 * sample_);
  // A population of two is symmetric.
  if (asymmetry == 0) return 0;
  return asymmetry / (static_cast<Extended>(population_ - 2) * std::sqrt(Variance()));
}

std::uint32_t HypergeometricDistribution::Mode() const {
  // The largest count below (n + 1) (K + 1) / (N + 2). A product of 2^64 wraps around to 0, and
  // back to 2^64 - 1.
  const std::uint64_t product =
      static_cast<std::uint64_t>(sample_ + 1) * static_cast<std::uint64_t>(successes_ + 1);
  return static_cast<std::uint32_t>((product - 1) / static_cast<std::uint64_t>(population_ + 2));
}

Interval<std::uint32_t> HypergeometricDistribution::Support() const {
  return {static_cast<std::uint32_t>(Least()), static_cast<std::uint32_t>(Most())};
}

}  // namespace qorvex
