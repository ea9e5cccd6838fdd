#pragma once

/// @file
/// UniformDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The continuous uniform distribution.
///
/// - Density: 1 / (greatest - least).
/// - Support: least <= x <= greatest.
/// - Errors: rsInvalidValue unless least < greatest, and where the difference is subnormal;
///   EInvalidOp where an end is infinite or the difference exceeds the format.
/// - Mode: least.
/// - Accuracy: within one unit in the last place.
class QORVEX_EXPORT UniformDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// On [0, 1] by default.
  explicit UniformDistribution(Extended least = 0, Extended greatest = 1);

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const;
  [[nodiscard]] Extended Variance() const;
  [[nodiscard]] Extended Skewness() const { return 0; }
  [[nodiscard]] Extended Mode() const { return least_; }
  [[nodiscard]] Interval<Extended> Support() const { return {least_, greatest_}; }
  /// @}

  /// @{
  /// The parameters.
  [[nodiscard]] Extended Least() const { return least_; }
  [[nodiscard]] Extended Greatest() const { return greatest_; }
  /// @}

 private:
  Extended least_;
  Extended greatest_;
  special::ExtendedPair width_;
};

}  // namespace qorvex
