#include "qorvex/stats/distributions/gumbel.h"

#include <cmath>
#include <numbers>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/location_scale.h"
#include "qorvex/stats/distributions/detail/unit_exponential.h"

namespace qorvex {

using namespace distributions;

// e^-z is exponential with mean 1.

namespace {

// ln t for the exponential point t with the given tail. Beside t = 1, where the upper tail q is 1 /
// e, t is 1 - ln(q e). The change q e - 1 is off by 2^-124 of itself: e is taken in two parts, and
// the product with the first, of 64 bits, is exact.
Wide LnOfExponential(Tail tail, const Extended& p) {
  constexpr Wide near{special::kOne.mantissa, -10};
  constexpr Wide e_high{elementary::Join(0xadf85458a2bb4a9a, 0), 1};
  constexpr Wide e_low{elementary::Join(0xafdc5620273d3cf1, 0xd8b9c583ce2d3695), -63};
  const Wide t = UnitExponentialQuantile(tail, p);
  if (!IsSmaller(t - special::kOne, near)) return elementary::LogWide(t);
  const Wide upper(tail == Tail::kUpper ? p : 1 - p);
  const Wide change = (upper * e_high - special::kOne) + upper * e_low;
  return elementary::Log1pWide(-elementary::Log1pWide(change));
}

}  // namespace

GumbelDistribution::GumbelDistribution(Extended location, Extended scale)
    : location_(location), scale_(scale) {
  RequirePositive(scale, rsValueGZero);
  RequireFinite(location);
}

Extended GumbelDistribution::Pdf(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return kNotANumber;
  if (IsInfinite(x)) return 0;
  const Wide rate = RateOf(scale_);
  const Wide z = (Wide(x) - Wide(location_)) * rate;
  return special::MakeScaled(rate, -z - PointOfLog(-z)).Value();
}

Tails GumbelDistribution::At(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return UnknownTails();
  if (IsInfinite(x)) return x < 0 ? BelowAll() : AboveAll();
  return UnitExponentialTailsAtLog(-Standardised(Wide(x), location_, scale_)).Mirrored();
}

Extended GumbelDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(location_, scale_, p)) return kNotANumber;
  return PointAt(-LnOfExponential(Opposite(tail), p), location_, scale_);
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
