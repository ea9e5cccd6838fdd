#pragma once

/// @file
/// NormalDistribution.

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The normal distribution.
///
/// - Density: exp(-z^2 / 2) / (s sqrt(2 pi)) for z = (x - m) / s, with mean m and standard
///   deviation s.
/// - Support: all real numbers.
/// - Errors: rsStdDev unless std_dev > 0; EInvalidOp for an infinite mean.
/// - Method: erfc and its inverse by polynomials on pieces. All figures are computed in 128 bits
/// and
///   rounded once.
class QORVEX_EXPORT NormalDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The standard normal distribution by default.
  explicit NormalDistribution(Extended mean = 0, Extended std_dev = 1)
      : mean_(mean), std_dev_(std_dev) {
    RequireValid();
  }

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const { return mean_; }
  [[nodiscard]] Extended Variance() const { return std_dev_ * std_dev_; }
  [[nodiscard]] Extended Skewness() const { return 0; }
  [[nodiscard]] Extended Mode() const { return mean_; }
  [[nodiscard]] Interval<Extended> Support() const;
  /// @}

  /// The parameter std_dev; Mean() is the other one.
  [[nodiscard]] Extended StdDev() const { return std_dev_; }

 private:
  void RequireValid() const;

  Extended mean_;
  Extended std_dev_;
};

}  // namespace qorvex
