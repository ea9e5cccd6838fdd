#include "qorvex/stats/distributions/gamma.h"

#include <cmath>

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::RegularisedGamma;
using special::Scaled;

namespace {

Extended CheckedShape(Extended shape, Extended scale) {
  RequirePositive(shape, rsValueGZero);
  RequirePositive(scale, rsValueGZero);
  RequireShape(shape);
  return shape;
}

}  // namespace

GammaDistribution::GammaDistribution(Extended shape, Extended scale)
    : shape_(CheckedShape(shape, scale)), scale_(scale), gamma_(shape) {}

Extended GammaDistribution::Pdf(Extended x) const {
  if (AnyNaN(shape_, scale_, x)) return kNotANumber;
  if (x == 0) return DensityAtEnd(shape_, 1 / scale_);
  if (x < 0 || std::isinf(x)) return 0;
  const RegularisedGamma::Point point(x, scale_);
  return (gamma_.LogDensity(point) / Scaled(x)).Value();
}

Tails GammaDistribution::At(Extended x) const {
  if (AnyNaN(shape_, scale_, x)) return UnknownTails();
  if (x <= 0) return BelowAll();
  if (std::isinf(x)) return AboveAll();
  return gamma_.At(RegularisedGamma::Point(x, scale_));
}

Extended GammaDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(shape_, scale_, p)) return kNotANumber;
  return CheckedFinite((gamma_.Quantile(tail, p) * scale_).Value());
}

Extended GammaDistribution::Mean() const {
  return shape_ * scale_;
}

Extended GammaDistribution::Variance() const {
  return shape_ * scale_ * scale_;
}

Extended GammaDistribution::Skewness() const {
  return 2 / std::sqrt(shape_);
}

Extended GammaDistribution::Mode() const {
  if (AnyNaN(shape_, scale_)) return kNotANumber;
  return shape_ > 1 ? (shape_ - 1) * scale_ : 0;
}

Interval<Extended> GammaDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
