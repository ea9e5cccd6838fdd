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
/// takes over. For small shapes, where the upper tail is what the lower one leaves of 1, a series
/// gives it without cancellation.
class QORVEX_EXPORT RegularisedGamma {
 public:
  /// The shape is not checked.
  explicit RegularisedGamma(Extended shape);

  /// A point 0 < x < infinity, which may be beyond the format.
  class QORVEX_EXPORT Point {
   public:
    /// The point itself.
    explicit Point(ExtendedPair value);
    /// numerator / denominator.
    Point(ExtendedPair numerator, ExtendedPair denominator);

   private:
    friend class RegularisedGamma;
    StoredWide x_;
  };

  /// Both tails at a point.
  [[nodiscard]] Tails At(const Point& point) const;
  /// x^a e^-x / Gamma(a): the density of ln X. Divided by x it is that of X.
  [[nodiscard]] Scaled LogDensity(const Point& point) const;
  /// The point with the given tail, 0 < p < 1, which may be beyond the format.
  [[nodiscard]] Scaled Quantile(Tail tail, Extended p) const;

 private:
  // The expansion holds at x.
  [[nodiscard]] bool IsUniform(const Point& point) const;
  // The tails from the density, where the expansion does not hold.
  [[nodiscard]] Tails TailsFrom(const Point& point, const Scaled& density) const;
  [[nodiscard]] Extended Start(Tail tail, Extended p, Extended asymptote) const;

  Extended shape_;
  Extended reference_;   // the density is relative to that at this point
  Scaled at_reference_;  // the density of ln X there
};

}  // namespace qorvex::special
