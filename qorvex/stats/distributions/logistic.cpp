#include "qorvex/stats/distributions/logistic.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

LogisticDistribution::LogisticDistribution(Extended location, Extended scale)
    : location_(location), scale_(scale) {
  RequirePositive(scale, rsValueGZero);
  RequireFinite(location);
}

Extended LogisticDistribution::Pdf(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return kNotANumber;
  if (std::isinf(x)) return 0;
  const ExtendedPair z = Standardised(x, location_, scale_);
  const ExtendedPair exponent = z.hi < 0 ? z : -z;
  const Extended sum = 1 + Exp(exponent.hi);
  return Scaled{1 / (scale_ * sum * sum), exponent}.Value();
}

Tails LogisticDistribution::At(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return UnknownTails();
  if (std::isinf(x)) return x < 0 ? BelowAll() : AboveAll();
  const ExtendedPair z = Standardised(x, location_, scale_);
  const ExtendedPair exponent = z.hi < 0 ? z : -z;
  const Tail tail = z.hi < 0 ? Tail::kLower : Tail::kUpper;
  return {tail, Scaled{1 / (1 + Exp(exponent.hi)), exponent}};
}

Extended LogisticDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(location_, scale_, p)) return kNotANumber;
  const ExtendedPair ln_odds = Ln(p / special::ExactSum(1, -p));
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
