#pragma once

/// @file
/// GeneralisedInverseGaussianDistribution.

#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The generalised inverse Gaussian distribution.
///
/// - Density: proportional to z^(b - 1) exp(-h / 2 (z + 1 / z)) for z = x / s, with scale s,
///   concentration h and order b. Random_Inv_Gauss(h, b) draws from that of scale 1, and -b
///   gives the distribution of its reciprocal.
/// - Support: x >= 0.
/// - Errors: rsInvalidValue unless h > 0; rsValueGZero unless scale > 0; EInvalidOp for h outside
///   1e-18 to 1e15, and for b outside -1e15 to 1e15.
/// - Accuracy: quantiles are off by up to 20 units for very small h. Skewness loses digits near 0.
/// - Cost: a tail twice 64 exponentials, twice that for one above 0.6, and more where h is small:
///   twice 700 for h = 1e-18.
/// - Method: Gauss-Legendre quadrature (Davis and Rabinowitz 1984, "Methods of numerical
///   integration") of the density of ln X, relative to that at the point, with an error below 1e-20
///   of the tail; the exponent in 125 bits. The normalising constant comes from the same rule
///   instead of the Bessel function K. Quantiles by Halley's iteration on the logarithm of the
///   smaller tail.
class QORVEX_EXPORT GeneralisedInverseGaussianDistribution {
 public:
  /// The type of the points.
  using Point = Extended;

  /// The parameters in the order of the formula.
  GeneralisedInverseGaussianDistribution(Extended h, Extended b, Extended scale = 1);

  /// The inverse Gaussian distribution with density sqrt(shape / (2 pi x^3)) exp(-shape (x -
  /// mean)^2 / (2 mean^2 x)): h = shape / mean, b = -1/2 and the scale is the mean. rsValueGZero
  /// unless both are positive; EInvalidOp for shape / mean outside 1e-18 to 1e15.
  [[nodiscard]] static GeneralisedInverseGaussianDistribution InverseGaussian(Extended mean,
                                                                              Extended shape);

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
  [[nodiscard]] Extended Concentration() const { return h_.hi; }
  [[nodiscard]] Extended Order() const { return b_; }
  [[nodiscard]] Extended Scale() const { return scale_; }
  /// @}

 private:
  GeneralisedInverseGaussianDistribution(special::ExtendedPair h, Extended b, Extended scale);

  struct Descent;
  // How the logarithm of the density of ln X falls from x on, for scale 1, towards the given tail.
  [[nodiscard]] Descent DescentFrom(special::ExtendedPair x, Tail tail) const;
  // By how much it has fallen at x since the mode; infinite for quotients beyond the format, which
  // are 0 or NaN.
  [[nodiscard]] special::ExtendedPair FallAt(special::ExtendedPair x) const;
  [[nodiscard]] Tails TailsFrom(special::ExtendedPair x, special::ExtendedPair fall) const;
  // The mean of (X / (s mode) - 1 - shift)^power.
  [[nodiscard]] Extended MomentAboutMode(int power, Extended shift) const;
  [[nodiscard]] Extended Mass() const { return lower_mass_ + upper_mass_; }

  special::ExtendedPair h_;
  Extended b_;
  Extended scale_;
  Extended mode_ = 0;  // of the density of ln X, as a point x for scale 1
  // The integrals of that density, relative to its greatest value, on both sides of the mode.
  Extended lower_mass_ = 0;
  Extended upper_mass_ = 0;
};

}  // namespace qorvex
