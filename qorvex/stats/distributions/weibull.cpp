#include "qorvex/stats/distributions/weibull.h"

#include <cmath>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/base/special/factorial.h"
#include "qorvex/stats/distributions/detail/location_scale.h"
#include "qorvex/stats/distributions/detail/unit_exponential.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

namespace {

// The logarithm of (x / scale)^shape, which is exponential with mean 1. A shape of 1e15 multiplies
// the error of the quotient, so that Ratio is not accurate enough.
Wide LogOfExponential(Extended x, Extended shape, Extended scale) {
  return Wide(shape) * elementary::LogWide(Wide(x) / Wide(scale));
}

// The Riemann zeta function at 2, 3, ...
constexpr Extended kZeta[] = {
    1.644934066848226436472L, 1.2020569031595942854L,   1.082323233711138191516L,
    1.036927755143369926331L, 1.017343061984449139715L, 1.00834927738192282684L,
    1.004077356197944339379L, 1.002008392826082214418L, 1.000994575127818085337L,
    1.000494188604119464559L, 1.000246086553308048299L, 1.000122713347578489147L,
    1.000061248135058704829L, 1.000030588236307020494L, 1.000015282259408651872L,
    1.000007637197637899762L, 1.00000381729326499984L,  1.000001908212716553939L,
    1.000000953962033872796L, 1.000000476932986787806L,
};

}  // namespace

WeibullDistribution::WeibullDistribution(Extended shape, Extended scale)
    : shape_(shape), scale_(scale) {
  if (shape == 0) RaiseMathError(rsInvalidValue);
  RequirePositive(scale, rsValueGZero);
  RequireShape(std::fabs(shape));
}

Extended WeibullDistribution::Pdf(Extended x) const {
  if (AnyNaN(shape_, scale_, x)) return kNotANumber;
  if (x == 0 && shape_ > 0) return DensityAtEnd(shape_, 1 / scale_);
  if (!IsPositive(x) || IsInfinite(x)) return 0;
  const Wide ln_t = LogOfExponential(x, shape_, scale_);
  const Wide factor = Ratio(Wide(std::fabs(shape_)), x);
  return special::MakeScaled(factor, ln_t - PointOfLog(ln_t)).Value();
}

Tails WeibullDistribution::At(Extended x) const {
  if (AnyNaN(shape_, scale_, x)) return UnknownTails();
  if (!IsPositive(x)) return BelowAll();
  if (IsInfinite(x)) return AboveAll();
  const Tails tails = UnitExponentialTailsAtLog(LogOfExponential(x, shape_, scale_));
  return shape_ > 0 ? tails : tails.Mirrored();
}

Extended WeibullDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(shape_, scale_, p)) return kNotANumber;
  const Wide t = UnitExponentialQuantile(shape_ > 0 ? tail : Opposite(tail), p);
  const Wide log = elementary::LogWide(t) / Wide(shape_);
  return CheckedFinite(special::MakeScaled(Wide(scale_), log).Value());
}

Scaled WeibullDistribution::Moment(int n) const {
  const ExtendedPair power = ExtendedPair(static_cast<Extended>(n)) / shape_;
  if (power.hi >= 0) return special::FactorialOf(power);
  if (power.hi <= -1) return {kInfinite, ExtendedPair()};
  const ExtendedPair argument = power + 1;
  return special::FactorialOf(argument) / Scaled{argument.hi, ExtendedPair()};
}

Extended WeibullDistribution::LnMomentRatio(int n) const {
  constexpr Extended series_from = 32;
  if (std::fabs(shape_) < series_from)
    return (Ln(Moment(n)) - static_cast<Extended>(n) * Ln(Moment(1))).hi;
  // From ln Gamma(1 + x) = -gamma x + zeta(2) x^2 / 2 - zeta(3) x^3 / 3 + ...
  Extended sum = 0;
  Extended power = -1 / shape_;
  Extended power_of_n = static_cast<Extended>(n);
  Extended j = 1;
  for (const Extended zeta : kZeta) {
    ++j;
    power /= -shape_;
    power_of_n *= static_cast<Extended>(n);
    sum += zeta * power * (power_of_n - static_cast<Extended>(n)) / j;
  }
  return sum;
}

Extended WeibullDistribution::Mean() const {
  return (Moment(1) * Scaled{scale_, ExtendedPair()}).Value();
}

Extended WeibullDistribution::Variance() const {
  if (shape_ < 0 && shape_ >= -2) return shape_ < -1 ? kInfinite : kNotANumber;
  const Extended mean = Mean();
  return mean * Expm1(LnMomentRatio(2)) * mean;
}

Extended WeibullDistribution::Skewness() const {
  if (shape_ < 0 && shape_ >= -3) return shape_ < -2 ? kInfinite : kNotANumber;
  const Extended ln_second = LnMomentRatio(2);
  const Extended ln_third = LnMomentRatio(3);
  // Beyond, the powers of the mean are negligible, and the others may be too large for the format.
  constexpr Extended large = 100;
  if (ln_second > large) return Exp(ln_third - 1.5L * ln_second);
  const Extended square = Expm1(ln_second);
  return (Expm1(ln_third) - 3 * square) / (square * std::sqrt(square));
}

Extended WeibullDistribution::Mode() const {
  return shape_ > 0 && shape_ <= 1 ? 0 : scale_ * Exp(Log1p(-1 / shape_) / shape_);
}

Interval<Extended> WeibullDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
