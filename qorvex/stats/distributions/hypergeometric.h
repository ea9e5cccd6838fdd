#pragma once

/// @file
/// HypergeometricDistribution.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The hypergeometric distribution of the successes in a sample that is drawn without replacement.
///
/// - Probability of k: C(K, k) C(N - K, n - k) / C(N, n), for a population of N with K
///   successes and a sample of n.
/// - Support: max(0, n + K - N) to min(n, K).
/// - Skewness: NaN where the variance is 0.
/// - Errors: rsHyperGeometricInvalid unless neither sample_size nor successes exceeds pop_size.
/// - Cost of a tail: up to as many steps as there are counts on its side, some ten milliseconds for
///   populations of 4e9.
/// - Method: factorials of 95 bits; tails as sums outwards.
class QORVEX_EXPORT HypergeometricDistribution {
 public:
  /// The type of the points.
  using Point = std::uint32_t;

  /// The sizes of the population and of the sample, and the successes in the population.
  HypergeometricDistribution(std::uint32_t pop_size, std::uint32_t sample_size,
                             std::uint32_t successes);

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
  [[nodiscard]] std::uint32_t PopulationSize() const {
    return static_cast<std::uint32_t>(population_);
  }
  [[nodiscard]] std::uint32_t SampleSize() const { return static_cast<std::uint32_t>(sample_); }
  [[nodiscard]] std::uint32_t Successes() const { return static_cast<std::uint32_t>(successes_); }
  /// @}

 private:
  [[nodiscard]] std::int64_t Least() const;
  [[nodiscard]] std::int64_t Most() const;
  [[nodiscard]] special::Scaled Probability(std::int64_t k) const;
  // P(X >= k) / P(X = k) for a step of 1, and P(X <= k) / P(X = k) for a step of -1.
  [[nodiscard]] special::Scaled SumFrom(std::int64_t k, int step) const;

  std::int64_t population_;
  std::int64_t sample_;
  std::int64_t successes_;
};

}  // namespace qorvex
