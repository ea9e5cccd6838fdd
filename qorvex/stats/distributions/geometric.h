#pragma once

/// @file
/// GeometricDistribution.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The geometric distribution of the failures before the first success, in independent trials with
/// success probability p each.
///
/// - Probability of k: p (1 - p)^k.
/// - Support: all counts, which start at 0.
/// - Skewness: NaN where the variance is 0.
/// - Errors: rsInvalidValue unless 0 < p <= 1. For a p of NaN Quantile and Mode raise it.
/// - Method: closed forms, with ln(1 - p) in 125 bits.
class QORVEX_EXPORT GeometricDistribution {
 public:
  /// The type of the points.
  using Point = std::uint32_t;

  /// The probability of success in each trial.
  explicit GeometricDistribution(Extended p);

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

  /// The parameter.
  [[nodiscard]] Extended SuccessProbability() const { return p_; }

 private:
  Extended p_;
  special::ExtendedPair ln_q_;  // ln(1 - p)
};

}  // namespace qorvex
