#include "qorvex/stats/distributions/exponential.h"

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/stats/distributions/detail/location_scale.h"
#include "qorvex/stats/distributions/detail/unit_exponential.h"

namespace qorvex {

using namespace distributions;

void ExponentialDistribution::RequireValid() const {
  RequirePositive(mean_, rsExpDistInvalid);
}

Extended ExponentialDistribution::Pdf(Extended x) const {
  if (AnyNaN(mean_, x)) return kNotANumber;
  if (IsNegative(x) || IsInfinite(x)) return 0;
  const Wide rate = RateOf(mean_);
  const Wide t = Wide(x) * rate;
  constexpr std::int64_t beyond = 30;
  return t.exponent < beyond ? elementary::Nearest(rate * elementary::ExpWide(-t)) : 0;
}

Tails ExponentialDistribution::At(Extended x) const {
  if (AnyNaN(mean_, x)) return UnknownTails();
  if (!IsPositive(x)) return BelowAll();
  if (IsInfinite(x)) return AboveAll();
  return UnitExponentialTails(Ratio(Wide(x), mean_));
}

Extended ExponentialDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(mean_, p)) return kNotANumber;
  return CheckedNearest(UnitExponentialQuantile(tail, p) * Wide(mean_));
}

Interval<Extended> ExponentialDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
