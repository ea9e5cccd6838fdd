#include "qorvex/stats/distributions/logistic.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/location_scale.h"

namespace qorvex {

using namespace distributions;
using special::kOne;
using special::MakeScaled;

namespace {

// The distance from the location, in units of the scale, and e^-distance; 0 where that is beyond
// all bounds.
struct Distance {
  Wide distance;
  Wide power;
};
Distance DistanceFrom(Extended location, Extended scale, Extended x) {
  const Wide z = Standardised(Wide(x), location, scale);
  const Wide distance(z.mantissa, z.exponent);
  constexpr std::int64_t far_exponent = 30;
  return {distance, z.exponent < far_exponent ? elementary::ExpWide(-distance) : Wide()};
}

}  // namespace

LogisticDistribution::LogisticDistribution(Extended location, Extended scale)
    : location_(location), scale_(scale) {
  RequirePositive(scale, rsValueGZero);
  RequireFinite(location);
}

Extended LogisticDistribution::Pdf(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return kNotANumber;
  if (IsInfinite(x)) return 0;
  const Wide power = DistanceFrom(location_, scale_, x).power;
  const Wide sum = kOne + power;
  return Nearest(power / (sum * sum * Wide(scale_)));
}

Tails LogisticDistribution::At(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return UnknownTails();
  if (IsInfinite(x)) return x < 0 ? BelowAll() : AboveAll();
  const Tail tail = x < location_ ? Tail::kLower : Tail::kUpper;
  const auto [distance, power] = DistanceFrom(location_, scale_, x);
  if (power.IsZero()) return {tail, MakeScaled(kOne, -distance)};
  return {tail, MakeScaled(power / (kOne + power))};
}

Extended LogisticDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(location_, scale_, p)) return kNotANumber;
  const Wide rest = kOne - Wide(p);
  // Near 1/2 the odds are 1 + (2 p - 1) / (1 - p).
  const bool is_central = p > 0.25L && p < 0.75L;
  const Wide ln_odds = is_central ? elementary::Log1pWide((ScaledBy(Wide(p), 1) - kOne) / rest)
                                  : elementary::LogWide(Wide(p) / rest);
  return PointAt(tail == Tail::kLower ? ln_odds : -ln_odds, location_, scale_);
}

Extended LogisticDistribution::Variance() const {
  const Extended std_dev = scale_ * (QorPi / std::sqrt(3.0L));
  return std_dev * std_dev;
}

Interval<Extended> LogisticDistribution::Support() const {
  return {-kInfinite, kInfinite};
}

}  // namespace qorvex
