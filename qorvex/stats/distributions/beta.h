#pragma once

/// @file
/// BetaDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/symmetric_beta.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The beta distribution.
///
/// - Density: x^(a - 1) (1 - x)^(b - 1) / B(a, b), with shapes a and b.
/// - Support: 0 <= x <= 1.
/// - Errors: rsValueGZero unless both shapes are positive; EInvalidOp for one outside 1e-18 to
/// 1e15.
/// - Accuracy: tails are off by up to a dozen units for shapes up to 1e5; near the middle of two
///   equal shapes by 20 at 1e7, 170 at 1e12 and thousands at 1e15. Quantiles of shapes below 0.1
///   are off by up to 2 / shape units; the last bit of p moves them by about half as much.
/// - Cost: shapes above a million take longer, up to some ten milliseconds.
/// - Method: closed forms for a shape of 1 and for equal shapes in the middle; sums of up to 16
///   terms for whole shapes that add up to 256 at most, exact where the result has 64 bits;
///   otherwise the continued fraction of DiDonato and Morris (1992), "Algorithm 708". Quantiles by
///   Halley's iteration on the logarithm of the smaller tail.
class QORVEX_EXPORT BetaDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The shapes.
  BetaDistribution(Extended a, Extended b);

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
  /// The shapes.
  [[nodiscard]] Extended A() const { return a_; }
  [[nodiscard]] Extended B() const { return b_; }
  /// @}

 private:
  Extended a_;
  Extended b_;
  special::RegularisedBeta beta_;
  special::SymmetricBeta tails_;
};

}  // namespace qorvex
