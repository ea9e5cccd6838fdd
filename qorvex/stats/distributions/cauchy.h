#pragma once

/// @file
/// CauchyDistribution.

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The Cauchy distribution, or Student's t distribution with one degree of freedom.
///
/// - Density: 1 / (pi s (1 + z^2)) for z = (x - m) / s, with location m and scale s.
/// - Support: all real numbers.
/// - Mean, Variance and Skewness do not exist: NaN.
/// - Errors: rsValueGZero unless scale > 0; EInvalidOp for an infinite location.
/// - Method: closed forms in 128 bits, rounded once.
class QORVEX_EXPORT CauchyDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The standard Cauchy distribution by default.
  explicit CauchyDistribution(Extended location = 0, Extended scale = 1);

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const;
  [[nodiscard]] Extended Variance() const;
  [[nodiscard]] Extended Skewness() const;
  [[nodiscard]] Extended Mode() const { return location_; }
  [[nodiscard]] Interval<Extended> Support() const;
  /// @}

  /// @{
  /// The parameters.
  [[nodiscard]] Extended Location() const { return location_; }
  [[nodiscard]] Extended Scale() const { return scale_; }
  /// @}

 private:
  Extended location_;
  Extended scale_;
};

}  // namespace qorvex
