#include "qorvex/stats/distributions/normal.h"

#include <cmath>

#include "qorvex/base/special/normal_tail.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"

namespace qorvex {

using namespace distributions;

NormalDistribution::NormalDistribution(Extended mean, Extended std_dev)
    : mean_(mean), std_dev_(std_dev) {
  RequireNormal(mean, std_dev);
}

Extended NormalDistribution::Pdf(Extended x) const {
  if (AnyNaN(mean_, std_dev_, x)) return kNotANumber;
  if (std::isinf(x)) return 0;
  return special::NormalDensity(Standardised(x, mean_, std_dev_), std_dev_).Value();
}

Tails NormalDistribution::At(Extended x) const {
  if (AnyNaN(mean_, std_dev_, x)) return UnknownTails();
  if (std::isinf(x)) return x < 0 ? BelowAll() : AboveAll();
  return StandardNormalTails(Standardised(x, mean_, std_dev_));
}

Extended NormalDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(mean_, std_dev_, p)) return kNotANumber;
  return CheckedFinite(StandardNormalQuantile(tail, p) * std_dev_ + mean_);
}

Interval<Extended> NormalDistribution::Support() const {
  return {-kInfinite, kInfinite};
}

}  // namespace qorvex
