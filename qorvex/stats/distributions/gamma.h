#pragma once

/// @file
/// GammaDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/regularised_gamma.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The gamma distribution.
///
/// - Density: x^(a - 1) e^(-x / s) / (Gamma(a) s^a), with shape a and scale s. With scale 1 the
///   tails are the regularised incomplete gamma functions P(a, x) and Q(a, x).
/// - Support: x >= 0.
/// - Errors: rsValueGZero unless shape > 0 and scale > 0; EInvalidOp for a shape outside 1e-18 to
///   1e15.
/// - Accuracy: quantiles of shapes below 0.1 are off by up to 1 / shape units, because that is how
///   much the last bit of p moves them.
/// - Method: power series, Legendre's continued fraction, and Temme (1979), "The asymptotic
///   expansion of the incomplete gamma functions". Quantiles by Halley's iteration on the logarithm
///   of the smaller tail.
class QORVEX_EXPORT GammaDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The mean is shape * scale.
  explicit GammaDistribution(Extended shape, Extended scale = 1);

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
  [[nodiscard]] Extended Shape() const { return shape_; }
  [[nodiscard]] Extended Scale() const { return scale_; }
  /// @}

 private:
  Extended shape_;
  Extended scale_;
  special::RegularisedGamma gamma_;
};

}  // namespace qorvex
