#include "qorvex/stats/distributions/exponential.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

ExponentialDistribution::ExponentialDistribution(Extended mean) : mean_(mean) {
  RequirePositive(mean, rsExpDistInvalid);
}

Extended ExponentialDistribution::Pdf(Extended x) const {
  if (AnyNaN(mean_, x)) return kNotANumber;
  const ExtendedPair ratio = ExtendedPair(x) / mean_;
  if (x < 0 || !(ratio.hi <= kLargest)) return 0;
  return Scaled{1 / mean_, -ratio}.Value();
}

Tails ExponentialDistribution::At(Extended x) const {
  if (AnyNaN(mean_, x)) return UnknownTails();
  if (x <= 0) return BelowAll();
  const ExtendedPair ratio = ExtendedPair(x) / mean_;
  if (!(ratio.hi <= kLargest)) return AboveAll();
  // So far down the lower tail is the ratio, which may be too small for the format.
  constexpr Extended far_down = 1e-4900L;
  if (ratio.hi < far_down) return {Tail::kLower, Scaled{1, LnOfRatio(ratio, x, mean_)}};
  if (ratio.hi < 1) return {Tail::kLower, Scaled{-Expm1(-ratio.hi), ExtendedPair()}};
  return {Tail::kUpper, Scaled{1, -ratio}};
}

Extended ExponentialDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(mean_, p)) return kNotANumber;
  return CheckedFinite(-mean_ * (tail == Tail::kLower ? Log1p(-p) : Log(p)));
}

Interval<Extended> ExponentialDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
