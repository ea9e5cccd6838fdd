#pragma once

/// @file
/// BinomialDistribution.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The binomial distribution of the successes in n trials with probability p each.
///
/// - Probability of k: C(n, k) p^k (1 - p)^(n - k).
/// - Support: 0 to n.
/// - Skewness: NaN where the variance is 0.
/// - Errors: rsBinomDistInvalid unless 0 <= p <= 1. For a p of NaN Quantile and Mode raise it.
/// - Accuracy: up to 255 trials the probability of a count is a product of 125 bits, so that
///   one with 64 bits, such as 3/8 for two heads in four tosses, is exact. Tails are those of
///   BetaDistribution with shapes k + 1 and n - k: those with 64 bits, such as 11/16 for at most
///   two heads in four tosses, are exact up to 255 trials as long as they are sums of at most 16
///   terms.
/// - Cost: a tail as that of BetaDistribution with shapes k + 1 and n - k.
/// - Method: products of 125 bits; Stirling's series beyond 255 trials; tails as beta tails.
class QORVEX_EXPORT BinomialDistribution {
 public:
  /// The type of the points.
  using Point = std::uint32_t;

  /// The probability of success in each trial, and the number of trials.
  BinomialDistribution(Extended p, std::uint32_t n);

  /// @{
  /// As for every DiscreteDistribution.
  [[nodiscard]] Extended Pmf(std::uint32_t k) const;
  [[nodiscard]] Tails At(std::uint32_t k) const;
  [[nodiscard]] std::uint32_t Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const;
  [[nodiscard]] Extended Variance() const;
  [[nodiscard]] Extended Skewness() const;
  [[nodiscard]] std::uint32_t Mode() const;
  [[nodiscard]] Interval<std::uint32_t> Support() const;
  /// @}

  /// @{
  /// The parameters.
  [[nodiscard]] Extended SuccessProbability() const { return p_; }
  [[nodiscard]] std::uint32_t Trials() const { return n_; }
  /// @}

 private:
  Extended p_;
  std::uint32_t n_;
  special::ExtendedPair q_;  // 1 - p
};

}  // namespace qorvex
