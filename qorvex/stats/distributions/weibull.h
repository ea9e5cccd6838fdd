#pragma once

/// @file
/// WeibullDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The Weibull distribution, and with a negative shape the Frechet distribution.
///
/// - Density: |a| t e^-t / x for t = (x / s)^a, with shape a and scale s. t has the exponential
///   distribution with mean 1. Random_Weibull(a) draws from that of scale 1.
/// - Support: x >= 0.
/// - Errors: rsInvalidValue for a shape of 0; rsValueGZero unless scale > 0; EInvalidOp for a shape
///   outside 1e-18 to 1e15 in size.
/// - Accuracy: quantiles for shapes below 1e-10 in size are off by about 2^-95 / |a| of themselves.
///   Skewness loses about as many digits as the shape has before the point, and about four for
///   shapes from -32 to -10.
/// - Method: closed forms in 128 bits, rounded once.
class QORVEX_EXPORT WeibullDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The shape may be negative.
  explicit WeibullDistribution(Extended shape, Extended scale = 1);

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
  // The mean of X^n for scale 1; infinite where n / shape <= -1.
  [[nodiscard]] special::Scaled Moment(int n) const;
  // ln(Moment(n) / Moment(1)^n).
  [[nodiscard]] Extended LnMomentRatio(int n) const;

  Extended shape_;
  Extended scale_;
};

}  // namespace qorvex
