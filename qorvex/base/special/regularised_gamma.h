#pragma once

/// @file
/// The gamma distribution with full relative accuracy in both tails.

#include "qorvex/base/export.h"
#include "qorvex/base/special/tails.h"

namespace qorvex::special {

/// The gamma distribution with a shape from 1e-18 to 1e15 and scale 1. A shape of NaN gives NaN.
///
/// Below the shape the power series gives the lower tail, above it the continued fraction gives the
/// upper one, each in some hundred terms at most, because around large shapes Temme's expansion
/// takes over. For small shapes Boost.Math gives the upper tail where it is 1 minus the lower
/// one.
class QORVEX_EXPORT RegularisedGamma {
 public:
  /// The shape is not checked.
  explicit RegularisedGamma(Extended shape);

  /// A point 0 < x < infinity and its logarithm, which keeps its digits where x underflows.
  struct Point {
    /// The point itself.
    explicit Point(ExtendedPair value) : x(value), ln_x(Ln(value)) {}
    /// numerator / denominator.
    Point(ExtendedPair numerator, ExtendedPair denominator)
        : x(numerator / denominator), ln_x(LnOfRatio(x, numerator, denominator)) {}
    /// The point.
    ExtendedPair x;
    /// Its natural logarithm.
    ExtendedPair ln_x;
  };

  /// Both tails at a point.
  [[nodiscard]] Tails At(const Point& point) const;
  /// x^(a + extra_power) e^-x / Gamma(a): the density of ln X, and with -1 that of X.
  [[nodiscard]] Scaled Density(const Point& point, Extended extra_power) const;
  /// The point with the given tail, 0 < p < 1. 0 where it is too small for the format.
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const;

 private:
  // The expansion holds at x.
  [[nodiscard]] bool IsUniform(Extended x) const;
  // The tails from the density, where the expansion does not hold.
  [[nodiscard]] Tails TailsFrom(Extended x, Scaled density) const;
  [[nodiscard]] Extended Start(Tail tail, Extended p, Extended asymptote) const;

  Extended shape_;
  Scaled factorial_;  // of the shape
};

}  // namespace qorvex::special
