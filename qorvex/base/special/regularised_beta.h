#pragma once

/// @file
/// The beta distribution with full relative accuracy in both tails.

#include "qorvex/base/export.h"
#include "qorvex/base/special/tails.h"

namespace qorvex::special {

/// A point of [0, 1] as the odds for : against, so x = for / (for + against), which keeps the
/// distance from 1 as well as the one from 0.
struct Odds {
  /// Proportional to x.
  ExtendedPair in_favour;
  /// Proportional to 1 - x.
  ExtendedPair against;
};

/// The point with the given odds.
[[nodiscard]] inline Extended FromOdds(const Scaled& odds) {
  const Extended value = odds.Value();
  return value < 1 ? value / (1 + value) : 1 / (1 + 1 / value);
}

/// The beta distribution with shapes from 1e-18 to 1e15. A shape of NaN gives NaN.
///
/// The continued fraction of DiDonato and Morris (1992), "Algorithm 708", gives the tail on the far
/// side of the mean, in at most some tens of terms times the square root of the shapes. For small
/// shapes, where that fraction is slow, or where the tail is what the other leaves of 1, a series
/// gives it without cancellation.
class QORVEX_EXPORT RegularisedBeta {
 public:
  /// The shapes are not checked.
  RegularisedBeta(Extended a, Extended b);

  /// @{
  /// The shapes.
  [[nodiscard]] Extended A() const { return a_; }
  [[nodiscard]] Extended B() const { return b_; }
  /// @}
  /// Both tails at odds above 0 and below infinity.
  [[nodiscard]] Tails At(const Odds& odds) const;
  /// x^a (1 - x)^b / B(a, b): the density of the logarithm of the odds. Divided by x (1 - x) it is
  /// that of x.
  [[nodiscard]] Scaled LogOddsDensity(const Odds& odds) const;
  /// 1 / B(a, b).
  [[nodiscard]] Scaled InverseBeta() const;
  /// The odds x / (1 - x) of the point with the given tail, 0 < p < 1.
  [[nodiscard]] Scaled QuantileOdds(Tail tail, Extended p) const;

 private:
  // x and y = 1 - x.
  struct Point;
  [[nodiscard]] Scaled LogOddsDensity(const Point& point) const;
  [[nodiscard]] Tails TailsAt(const Point& point, const Scaled& density) const;

  Extended a_;
  Extended b_;
  // The density is relative to that at this point, if there is one.
  StoredWide reference_x_;
  StoredWide reference_y_;
  Scaled at_reference_;  // the density of the logarithm of the odds there
};

}  // namespace qorvex::special
