#pragma once

/// @file
/// ChiSquareDistribution.

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/distributions/gamma.h"

namespace qorvex {

/// The chi-square distribution with df degrees of freedom, which need not be whole: a gamma
/// distribution with shape df / 2 and scale 2.
///
/// - Density: x^(df / 2 - 1) e^(-x / 2) / (Gamma(df / 2) 2^(df / 2)).
/// - Support: x >= 0.
/// - Errors: rsDF unless df > 0; EInvalidOp for a df / 2 outside 1e-18 to 1e15.
/// - Accuracy and method: those of GammaDistribution.
class QORVEX_EXPORT ChiSquareDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The degrees of freedom.
  explicit ChiSquareDistribution(Extended df);

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const { return gamma_.Pdf(x); }
  [[nodiscard]] Tails At(Extended x) const { return gamma_.At(x); }
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const { return gamma_.Quantile(tail, p); }
  [[nodiscard]] Extended Mean() const { return gamma_.Mean(); }
  [[nodiscard]] Extended Variance() const { return gamma_.Variance(); }
  [[nodiscard]] Extended Skewness() const { return gamma_.Skewness(); }
  [[nodiscard]] Extended Mode() const { return gamma_.Mode(); }
  [[nodiscard]] Interval<Extended> Support() const { return gamma_.Support(); }
  /// @}

  /// The degrees of freedom.
  [[nodiscard]] Extended DegreesOfFreedom() const { return 2 * gamma_.Shape(); }

 private:
  GammaDistribution gamma_;
};

}  // namespace qorvex
