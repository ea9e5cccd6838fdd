#pragma once

/// @file
/// LogNormalDistribution.

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The log-normal distribution: ln X has a normal distribution.
///
/// - Density: exp(-z^2 / 2) / (x s sqrt(2 pi)) for z = (ln x - m) / s, with mean m and standard
///   deviation s of ln X.
/// - Support: x >= 0.
/// - Errors: rsStdDev unless std_dev > 0; EInvalidOp for an infinite mean.
/// - Method: that of NormalDistribution at ln x.
class QORVEX_EXPORT LogNormalDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The mean and the standard deviation of ln X.
  explicit LogNormalDistribution(Extended log_mean = 0, Extended log_std_dev = 1)
      : log_mean_(log_mean), log_std_dev_(log_std_dev) {
    RequireValid();
  }

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const;
  [[nodiscard]] Extended Variance() const;
  [[nodiscard]] Extended Skewness() const;
  [[nodiscard]] Extended Mode() const;
  [[nodiscard]] Interval<Extended> Support() const;
  /// @}

  /// @{
  /// The parameters.
  [[nodiscard]] Extended LogMean() const { return log_mean_; }
  [[nodiscard]] Extended LogStdDev() const { return log_std_dev_; }
  /// @}

 private:
  void RequireValid() const;

  Extended log_mean_;
  Extended log_std_dev_;
};

}  // namespace qorvex
