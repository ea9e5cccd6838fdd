#pragma once

/// @file
/// VonMisesDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The von Mises distribution of angles around 0.
///
/// - Density: exp(k cos x) / (2 pi I0(k)), with concentration k. For k = 0 it is uniform.
/// - Support: -pi to pi.
/// - Mode: 0, for k = 0 too.
/// - Variance: that of the angle as a number, not the circular variance.
/// - Errors: rsInvalidValue unless concentration >= 0; EInvalidOp for one above 1e15.
/// - Accuracy: a quantile near 0, which takes p to be near 1/2, is off by 2e-19 times the standard
///   deviation.
/// - Cost: a tail some 64 exponentials and 128 sines.
/// - Method: Gauss-Legendre quadrature (Davis and Rabinowitz 1984, "Methods of numerical
///   integration") of the tail from the point outwards, relative to the density there, with an
///   error below 1e-20 of the tail; the exponent k (1 - cos x) in 125 bits. Quantiles by Newton's
///   iteration on the logarithm of the tail, with bisection as a fallback.
class QORVEX_EXPORT VonMisesDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The concentration.
  explicit VonMisesDistribution(Extended concentration);

  /// @{
  /// As for every ContinuousDistribution.
  [[nodiscard]] Extended Pdf(Extended x) const;
  [[nodiscard]] Tails At(Extended x) const;
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;
  [[nodiscard]] Extended Mean() const { return 0; }
  [[nodiscard]] Extended Variance() const;
  [[nodiscard]] Extended Skewness() const { return 0; }
  [[nodiscard]] Extended Mode() const { return 0; }
  [[nodiscard]] Interval<Extended> Support() const;
  /// @}

  /// The parameter.
  [[nodiscard]] Extended Concentration() const { return concentration_; }

 private:
  // The probability above 0 <= x < pi, and the same relative to the density.
  struct UpperTail {
    special::Scaled probability;
    Extended relative;
  };
  [[nodiscard]] UpperTail UpperTailAt(Extended x) const;

  Extended concentration_;
  Extended half_mass_ = 0;  // the integral of exp(k (cos x - 1)) from 0 to pi
};

}  // namespace qorvex
