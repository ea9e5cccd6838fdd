#pragma once

/// @file
/// NegativeBinomialDistribution.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The negative binomial distribution of the successes before the r-th failure, in independent
/// trials with success probability p each. r need not be whole.
///
/// - Probability of k: Gamma(k + r) / (Gamma(r) k!) p^k (1 - p)^r.
/// - Support: all counts.
/// - Errors: rsInvalidValue unless 0 < p < 1 and failures > 0; EInvalidOp for failures outside
///   1e-18 to 1e15. For a parameter of NaN Quantile and Mode raise rsInvalidValue.
/// - Cost: a tail as that of BetaDistribution with shapes r and k + 1.
/// - Method: beta tails with shapes r and k + 1.
class QORVEX_EXPORT NegativeBinomialDistribution {
 public:
  /// The type of the points.
  using Point = std::uint32_t;

  /// The probability of success in each trial, and r.
  NegativeBinomialDistribution(Extended p, Extended failures);

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
  [[nodiscard]] Extended Failures() const { return failures_; }
  /// @}

 private:
  Extended p_;
  Extended failures_;
  special::ExtendedPair q_;  // 1 - p
};

}  // namespace qorvex
