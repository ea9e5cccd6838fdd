#include "qorvex/stats/distributions/generalised_inverse_gaussian.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/tail_solver.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/gauss_legendre.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

namespace {

// e^s - 1 - s and e^-s - 1 + s for s >= 0, without cancellation.
struct ExponentialRests {
  explicit ExponentialRests(Extended s) {
    constexpr Extended series_below = 0.5L;
    if (s < series_below) {
      // The even and the odd part.
      const Extended square = s * s;
      Extended even = 0;
      Extended odd = 0;
      constexpr Extended last = 18;
      for (Extended n = last; n > 2; n -= 2) {
        even = (even + 1) * square / (n * (n - 1));
        odd = (odd + 1) * square / (n * (n + 1));
      }
      even = (even + 1) * square / 2;
      odd = (odd + 1) * square * s / 6;
      growing = even + odd;
      shrinking = even - odd;
    } else {
      const Extended power = Expm1(s);
      growing = power - s;
      shrinking = s - power / (1 + power);
    }
  }
  Extended growing;
  Extended shrinking;
};

// Where the density proportional to exp(b u - h cosh u) is greatest, as e^u.
Extended ModeOf(Extended h, Extended b) {
  const Extended root = std::sqrt(h * h + b * b);
  return b < 0 ? h / (root - b) : (root + b) / h;
}

ExtendedPair CheckedRatio(Extended mean, Extended shape) {
  RequirePositive(mean, rsValueGZero);
  RequirePositive(shape, rsValueGZero);
  // Beyond the format, pairs are NaN.
  RequireShape(shape / mean);
  return ExtendedPair(shape) / mean;
}

}  // namespace

// exp(-At(s)) is how the density changes over the distance s of logarithms. All terms are positive
// on the far side of the mode.
struct GeneralisedInverseGaussianDistribution::Descent {
  [[nodiscard]] Extended At(Extended s) const {
    const ExponentialRests rests(s);
    return slope * s + growing * rests.growing + shrinking * rests.shrinking;
  }
  // Where it has reached a fall, or a little more, by Newton's iteration from beyond.
  [[nodiscard]] Extended Reach(Extended fall) const {
    const Extended grown = fall / growing;
    const Extended shrunk = fall / shrinking;
    Extended s = std::fmin(Log1p(grown + std::sqrt(2 * grown)),
                           (shrunk + std::sqrt(shrunk * (shrunk + 8))) / 2);
    if (slope > 0) s = std::fmin(s, fall / slope);
    constexpr Extended little = 1.05L;
    for (Extended at = At(s); at > little * fall; at = At(s)) {
      s -= (at - fall) / (slope + growing * Expm1(s) - shrinking * Expm1(-s));
    }
    return s;
  }
  // The integral of the density, relative to the start.
  [[nodiscard]] Extended IntegralTo(Extended end) const {
    return Integral(end, [this](Extended s) { return Exp(-At(s)); });
  }
  [[nodiscard]] Extended Mass() const { return IntegralTo(Reach(kNegligibleFall)); }

  Extended slope;
  Extended growing;
  Extended shrinking;
};

GeneralisedInverseGaussianDistribution::GeneralisedInverseGaussianDistribution(ExtendedPair h,
                                                                               Extended b,
                                                                               Extended scale)
    : h_(h), b_(b), scale_(scale) {
  if (h.hi <= 0) RaiseMathError(rsInvalidValue);
  RequirePositive(scale, rsValueGZero);
  RequireShape(h.hi);
  if (std::fabs(b) > special::kLargestShape) throw EInvalidOp();
  if (AnyNaN(h.hi, b, scale)) return;
  mode_ = ModeOf(h.hi, b);
  lower_mass_ = DescentFrom(mode_, Tail::kLower).Mass();
  upper_mass_ = DescentFrom(mode_, Tail::kUpper).Mass();
}

GeneralisedInverseGaussianDistribution::GeneralisedInverseGaussianDistribution(Extended h,
                                                                               Extended b,
                                                                               Extended scale)
    : GeneralisedInverseGaussianDistribution(ExtendedPair(h), b, scale) {}

GeneralisedInverseGaussianDistribution GeneralisedInverseGaussianDistribution::InverseGaussian(
    Extended mean, Extended shape) {
  return {CheckedRatio(mean, shape), -0.5L, mean};
}

GeneralisedInverseGaussianDistribution::Descent GeneralisedInverseGaussianDistribution::DescentFrom(
    ExtendedPair x, Tail tail) const {
  const ExtendedPair half = h_ * 0.5L;
  const ExtendedPair growing = half * x;
  const ExtendedPair shrinking = half / x;
  const Extended slope = (growing - shrinking - b_).hi;
  if (tail == Tail::kUpper) return {slope, growing.hi, shrinking.hi};
  return {-slope, shrinking.hi, growing.hi};
}

ExtendedPair GeneralisedInverseGaussianDistribution::FallAt(ExtendedPair x) const {
  if (!(x.hi > 0 && x.hi <= kLargest)) return kInfinite;
  const ExtendedPair ratio = x / mode_;
  // h / 2 (x + 1 / x - mode - 1 / mode) without cancellation.
  const ExtendedPair change = (x - mode_) * (1 - 1 / x / mode_);
  return h_ * 0.5L * change - b_ * LnOfRatio(ratio, x, mode_);
}

Tails GeneralisedInverseGaussianDistribution::TailsFrom(ExtendedPair x, ExtendedPair fall) const {
  const Tail outwards = x.hi < mode_ ? Tail::kLower : Tail::kUpper;
  const Scaled tail{DescentFrom(x, outwards).Mass() / Mass(), -fall};
  constexpr Extended most = 0.6L;
  if (tail.Value() <= most) return {outwards, tail};
  // The other one is smaller: what lies between the point and the mode, and all beyond the mode.
  const Extended distance = std::fabs(Ln(x / mode_).hi);
  const Extended between = DescentFrom(mode_, outwards).IntegralTo(distance);
  const Extended beyond = outwards == Tail::kLower ? upper_mass_ : lower_mass_;
  return {Opposite(outwards), Scaled{(between + beyond) / Mass(), ExtendedPair()}};
}

Extended GeneralisedInverseGaussianDistribution::Pdf(Extended x) const {
  if (AnyNaN(h_.hi, b_, scale_, x)) return kNotANumber;
  if (x <= 0 || std::isinf(x)) return 0;
  const ExtendedPair fall = FallAt(ExtendedPair(x) / scale_);
  // Infinite far from the mode.
  if (!(std::fabs(fall.hi) <= kLargest)) return 0;
  return Scaled{1 / Mass(), -fall - Ln(ExtendedPair(x))}.Value();
}

Tails GeneralisedInverseGaussianDistribution::At(Extended x) const {
  if (AnyNaN(h_.hi, b_, scale_, x)) return UnknownTails();
  if (x <= 0) return BelowAll();
  if (std::isinf(x)) return AboveAll();
  const ExtendedPair ratio = ExtendedPair(x) / scale_;
  const ExtendedPair fall = FallAt(ratio);
  if (!(std::fabs(fall.hi) <= kLargest)) return ratio.hi < mode_ ? BelowAll() : AboveAll();
  return TailsFrom(ratio, fall);
}

Extended GeneralisedInverseGaussianDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(h_.hi, b_, scale_, p)) return kNotANumber;
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  // Where the density has fallen by p.
  const Extended distance = DescentFrom(mode_, tail).Reach(-Log(p));
  const Extended start = mode_ * Exp(tail == Tail::kLower ? -distance : distance);
  constexpr Extended largest_step = 1;
  const Scaled x = special::SolveTail(tail, p, start, largest_step, [this](Extended at) {
    const ExtendedPair fall = FallAt(at);
    return special::TailsAndDensity{TailsFrom(at, fall), Scaled{1 / Mass(), -fall},
                                    -DescentFrom(at, Tail::kUpper).slope};
  });
  return CheckedFinite((x * scale_).Value());
}

Extended GeneralisedInverseGaussianDistribution::MomentAboutMode(int power, Extended shift) const {
  const auto integral = [=, this](Tail tail, Extended end) {
    const Descent descent = DescentFrom(mode_, tail);
    return Integral(end, [=](Extended s) {
      const Extended distance = Expm1(tail == Tail::kLower ? -s : s) - shift;
      Extended weight = distance;
      for (int i = 1; i < power; ++i) weight *= distance;
      return weight * Exp(-descent.At(s));
    });
  };
  // With the weight x^power the density reaches farther.
  GeneralisedInverseGaussianDistribution weighted = *this;
  weighted.b_ += static_cast<Extended>(power);
  weighted.mode_ = ModeOf(h_.hi, weighted.b_);
  const Extended reach = weighted.DescentFrom(weighted.mode_, Tail::kUpper).Reach(kNegligibleFall);
  const Extended lower =
      integral(Tail::kLower, DescentFrom(mode_, Tail::kLower).Reach(kNegligibleFall));
  const Extended upper = integral(Tail::kUpper, Log(weighted.mode_ / mode_) + reach);
  return (lower + upper) / Mass();
}

Extended GeneralisedInverseGaussianDistribution::Mean() const {
  if (AnyNaN(h_.hi, b_, scale_)) return kNotANumber;
  return scale_ * mode_ * (1 + MomentAboutMode(1, 0));
}

Extended GeneralisedInverseGaussianDistribution::Variance() const {
  if (AnyNaN(h_.hi, b_, scale_)) return kNotANumber;
  const Extended unit = scale_ * mode_;
  return unit * MomentAboutMode(2, MomentAboutMode(1, 0)) * unit;
}

Extended GeneralisedInverseGaussianDistribution::Skewness() const {
  if (AnyNaN(h_.hi, b_, scale_)) return kNotANumber;
  const Extended shift = MomentAboutMode(1, 0);
  const Extended variance = MomentAboutMode(2, shift);
  return MomentAboutMode(3, shift) / (variance * std::sqrt(variance));
}

Extended GeneralisedInverseGaussianDistribution::Mode() const {
  return AnyNaN(h_.hi, b_, scale_) ? kNotANumber : scale_ * ModeOf(h_.hi, b_ - 1);
}

Interval<Extended> GeneralisedInverseGaussianDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
