#pragma once

/// @file
/// StudentTDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/regularised_beta.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// Student's t distribution with df degrees of freedom, which need not be whole.
///
/// - Density: (1 + x^2 / df)^(-(df + 1) / 2) / (sqrt(df) B(df / 2, 1 / 2)).
/// - Support: all real numbers.
/// - Mean for df > 1, variance for df > 2 (infinite from above 1 on), skewness for df > 3.
/// - Errors: rsDF unless df > 0; EInvalidOp for a df / 2 outside 1e-18 to 1e15.
/// - Accuracy: as for BetaDistribution with shapes df / 2 and 1 / 2.
/// - Method: beta tails at the odds df / x^2.
class QORVEX_EXPORT StudentTDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The degrees of freedom.
  explicit StudentTDistribution(Extended df);

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const;
  [[nodiscard]] Extended Variance() const;
  [[nodiscard]] Extended Skewness() const;
  [[nodiscard]] Extended Mode() const { return 0; }
  [[nodiscard]] Interval<Extended> Support() const;
  /// @}

  /// The degrees of freedom.
  [[nodiscard]] Extended DegreesOfFreedom() const { return df_; }

 private:
  // df / x : x for x > 0, the odds of the beta variable df / (df + x^2).
  [[nodiscard]] special::Odds OddsOf(Extended x) const;

  Extended df_;
  special::RegularisedBeta beta_;
};

}  // namespace qorvex
