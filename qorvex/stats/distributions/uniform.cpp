#include "qorvex/stats/distributions/uniform.h"

#include <cmath>
#include <limits>

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;
using special::ExactSum;
using special::ExtendedPair;
using special::LnOfRatio;
using special::Scaled;

UniformDistribution::UniformDistribution(Extended least, Extended greatest)
    : least_(least), greatest_(greatest), width_(ExactSum(greatest, -least)) {
  if (least >= greatest || width_.hi < std::numeric_limits<Extended>::min()) {
    RaiseMathError(rsInvalidValue);
  }
  RequireFinite(width_.hi);
}

Extended UniformDistribution::Pdf(Extended x) const {
  if (AnyNaN(least_, greatest_, x)) return kNotANumber;
  return x < least_ || x > greatest_ ? 0 : 1 / width_.hi;
}

Tails UniformDistribution::At(Extended x) const {
  if (AnyNaN(least_, greatest_, x)) return UnknownTails();
  if (x <= least_) return BelowAll();
  if (x >= greatest_) return AboveAll();
  const ExtendedPair below = ExactSum(x, -least_);
  const ExtendedPair above = ExactSum(greatest_, -x);
  const Tail tail = below.hi < above.hi ? Tail::kLower : Tail::kUpper;
  const ExtendedPair distance = tail == Tail::kLower ? below : above;
  const ExtendedPair ratio = distance / width_;
  // A tail that may be too small for the format.
  constexpr Extended tiny = 1e-4900L;
  if (ratio.hi < tiny) return {tail, Scaled{1, LnOfRatio(ratio, distance, width_)}};
  return {tail, Scaled{ratio.hi, ExtendedPair()}};
}

Extended UniformDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(least_, greatest_, p)) return kNotANumber;
  const ExtendedPair distance = width_ * p;
  return (tail == Tail::kLower ? least_ + distance : greatest_ - distance).hi;
}

Extended UniformDistribution::Mean() const {
  return least_ / 2 + greatest_ / 2;
}

Extended UniformDistribution::Variance() const {
  return width_.hi / 12 * width_.hi;
}

}  // namespace qorvex
