#pragma once

/// @file
/// PoissonDistribution.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/regularised_gamma.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The Poisson distribution.
///
/// - Probability of k: m^k e^-m / k!, with mean m.
/// - Support: all counts.
/// - Errors: rsPoissonInvalid unless lambda > 0. For a lambda of NaN Quantile and Mode raise it.
/// - Method: Stirling's series for large factorials; tails as gamma tails with shape k + 1.
class QORVEX_EXPORT PoissonDistribution {
 public:
  /// The type of the points.
  using Point = std::uint32_t;

  /// The mean.
  explicit PoissonDistribution(Extended lambda);

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

 private:
  Extended lambda_;
  special::RegularisedGamma::Point point_;  // the same
};

}  // namespace qorvex
