#include "qorvex/stats/distributions/gumbel.h"

#include <cmath>
#include <numbers>

#include "qorvex/base/elementary.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"
#include "qorvex/stats/distributions/detail/unit_exponential.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

// e^-z is exponential with mean 1.

GumbelDistribution::GumbelDistribution(Extended location, Extended scale)
    : location_(location), scale_(scale) {
  RequirePositive(scale, rsValueGZero);
  RequireFinite(location);
}

Extended GumbelDistribution::Pdf(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return kNotANumber;
  if (std::isinf(x)) return 0;
  const ExtendedPair z = Standardised(x, location_, scale_);
  const ExtendedPair t = Exp(-z);
  return t.hi > kLargest ? 0 : Scaled{1 / scale_, -z - t}.Value();
}

Tails GumbelDistribution::At(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return UnknownTails();
  if (std::isinf(x)) return x < 0 ? BelowAll() : AboveAll();
  return UnitExponentialTails(-Standardised(x, location_, scale_)).Mirrored();
}

Extended GumbelDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(location_, scale_, p)) return kNotANumber;
  return PointAt(-LnUnitExponentialQuantile(Opposite(tail), p), location_, scale_);
}

Extended GumbelDistribution::Mean() const {
  return location_ + std::numbers::egamma_v<Extended> * scale_;
}

Extended GumbelDistribution::Variance() const {
  const Extended std_dev = scale_ * (QorPi / std::sqrt(6.0L));
  return std_dev * std_dev;
}

Extended GumbelDistribution::Skewness() const {
  // 12 sqrt(6) zeta(3) / pi^3
  return 1.139547099404648657493L;
}

Interval<Extended> GumbelDistribution::Support() const {
  return {-kInfinite, kInfinite};
}

}  // namespace qorvex
