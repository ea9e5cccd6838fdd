#include "qorvex/stats/distributions/normal.h"

#include "qorvex/base/special/detail/normal_wide.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"

namespace qorvex {

using namespace distributions;

void NormalDistribution::RequireValid() const {
  RequireNormal(mean_, std_dev_);
}

Extended NormalDistribution::Pdf(Extended x) const {
  if (AnyNaN(mean_, std_dev_, x)) return kNotANumber;
  if (IsInfinite(x)) return 0;
  const Wide rate = RateOf(std_dev_);
  return Nearest(rate * special::NormalDensityWide((Wide(x) - Wide(mean_)) * rate));
}

Tails NormalDistribution::At(Extended x) const {
  if (AnyNaN(mean_, std_dev_, x)) return UnknownTails();
  if (IsInfinite(x)) return x < 0 ? BelowAll() : AboveAll();
  return StandardNormalTails(Standardised(Wide(x), mean_, std_dev_));
}

Extended NormalDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(mean_, std_dev_, p)) return kNotANumber;
  return PointAt(WideNormalQuantile(tail, p), mean_, std_dev_);
}

Interval<Extended> NormalDistribution::Support() const {
  return {-kInfinite, kInfinite};
}

}  // namespace qorvex
