#include "qorvex/stats/distributions/hypergeometric.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/special/binomial.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/counts.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

namespace {

// Terms of a sum below this share of it are left out.
constexpr Extended kRounding = std::numeric_limits<Extended>::epsilon() / 8;

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

Extended HypergeometricDistribution::Ratio(std::int64_t k) const {
  return static_cast<Extended>(successes_ - k) * static_cast<Extended>(sample_ - k) /
         (static_cast<Extended>(k + 1) *
          static_cast<Extended>(population_ - successes_ - sample_ + k + 1));
}

Scaled HypergeometricDistribution::Probability(std::int64_t k) const {
  if (k < Least() || k > Most()) return 0;
  if (Least() == Most()) return 1;
  // Binomial probabilities of successes and failures in the sample, on condition of its size.
  return BinomialAt(successes_, k, sample_, population_) *
         BinomialAt(population_ - successes_, sample_ - k, sample_, population_) /
         BinomialAt(population_, sample_, sample_, population_);
}

// Each probability from the one before.
Scaled HypergeometricDistribution::SumDownwards(std::int64_t k) const {
  Extended sum = 1;
  Extended term = 1;
  for (std::int64_t i = k; i > Least() && term > sum * kRounding; --i) {
    term /= Ratio(i - 1);
    sum += term;
  }
  return Scaled(sum) * Probability(k);
}

Scaled HypergeometricDistribution::SumUpwards(std::int64_t k) const {
  Extended sum = 1;
  Extended term = 1;
  for (std::int64_t i = k; i < Most() && term > sum * kRounding; ++i) {
    term *= Ratio(i);
    sum += term;
  }
  return Scaled(sum) * Probability(k);
}

Extended HypergeometricDistribution::Pmf(std::uint32_t k) const {
  return Probability(k).Value();
}

Tails HypergeometricDistribution::At(std::uint32_t k) const {
  if (k < Least()) return BelowAll();
  if (k >= Most()) return AboveAll();
  if (static_cast<Extended>(k) < Mean()) return {Tail::kLower, SumDownwards(k)};
  return {Tail::kUpper, SumUpwards(std::int64_t{k} + 1)};
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
