#include "qorvex/stats/distributions/exponential.h"

#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/location_scale.h"
#include "qorvex/stats/distributions/detail/unit_exponential.h"

namespace qorvex {

using namespace distributions;
using special::MakeScaled;

ExponentialDistribution::ExponentialDistribution(Extended mean) : mean_(mean) {
  RequirePositive(mean, rsExpDistInvalid);
}

Extended ExponentialDistribution::Pdf(Extended x) const {
  if (AnyNaN(mean_, x)) return kNotANumber;
  if (x < 0 || IsInfinite(x)) return 0;
  const Wide rate = RateOf(mean_);
  return MakeScaled(rate, -(Wide(x) * rate)).Value();
}

Tails ExponentialDistribution::At(Extended x) const {
  if (AnyNaN(mean_, x)) return UnknownTails();
  if (x <= 0) return BelowAll();
  if (IsInfinite(x)) return AboveAll();
  return UnitExponentialTails(Ratio(Wide(x), mean_));
}

Extended ExponentialDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(mean_, p)) return kNotANumber;
  return CheckedFinite(Nearest(UnitExponentialQuantile(tail, p) * Wide(mean_)));
}

Interval<Extended> ExponentialDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
