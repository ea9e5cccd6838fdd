#pragma once

/// @file
/// ExponentialDistribution.

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The exponential distribution.
///
/// - Density: exp(-x / m) / m, with mean m.
/// - Support: x >= 0.
/// - Errors: rsExpDistInvalid unless mean > 0.
/// - Method: closed forms in 128 bits, rounded once.
class QORVEX_EXPORT ExponentialDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The mean, 1 / rate.
  explicit ExponentialDistribution(Extended mean = 1) : mean_(mean) { RequireValid(); }

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const { return mean_; }
  [[nodiscard]] Extended Variance() const { return mean_ * mean_; }
  [[nodiscard]] Extended Skewness() const { return 2; }
  [[nodiscard]] Extended Mode() const { return 0; }
  [[nodiscard]] Interval<Extended> Support() const;
  /// @}

 private:
  void RequireValid() const;

  Extended mean_;
};

}  // namespace qorvex
