#pragma once

/// @file
/// FDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/symmetric_beta.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The F distribution with df1 degrees of freedom in the numerator and df2 in the denominator,
/// which need not be whole.
///
/// - Density: (df1 / df2)^(df1 / 2) x^(df1 / 2 - 1) (1 + x df1 / df2)^(-(df1 + df2) / 2) /
///   B(df1 / 2, df2 / 2).
/// - Support: x >= 0.
/// - Mean infinite for df2 <= 2; variance for df2 > 2, infinite up to 4; skewness for df2 > 4,
///   infinite up to 6.
/// - Errors: rsDF unless both are positive; EInvalidOp for a df1 / 2 or df2 / 2 outside 1e-18 to
///   1e15.
/// - Accuracy and cost: as for BetaDistribution with shapes df1 / 2 and df2 / 2.
/// - Method: beta tails at the odds x df1 / df2.
class QORVEX_EXPORT FDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The degrees of freedom of the numerator and of the denominator.
  FDistribution(Extended df1, Extended df2);

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
  [[nodiscard]] Extended NumeratorDf() const { return df1_; }
  [[nodiscard]] Extended DenominatorDf() const { return df2_; }
  /// @}

 private:
  // x : df2 / df1, the odds of a beta variable.
  [[nodiscard]] special::Odds OddsOf(Extended x) const { return {x, ratio_}; }

  Extended df1_;
  Extended df2_;
  special::ExtendedPair ratio_;  // df2 / df1
  special::RegularisedBeta beta_;
  special::SymmetricBeta tails_;
};

}  // namespace qorvex
