#include "qorvex/stats/distributions/cauchy.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

CauchyDistribution::CauchyDistribution(Extended location, Extended scale)
    : location_(location), scale_(scale) {
  RequirePositive(scale, rsValueGZero);
  RequireFinite(location);
}

Extended CauchyDistribution::Pdf(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return kNotANumber;
  if (std::isinf(x)) return 0;
  const Extended z = std::fabs(Standardised(x, location_, scale_).hi);
  if (z <= 1) return 1 / (QorPi * scale_ * (1 + z * z));
  return 1 / (QorPi * scale_ * z) / (z + 1 / z);
}

Tails CauchyDistribution::At(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return UnknownTails();
  const ExtendedPair distance = special::ExactSum(x, -location_);
  const Tail tail = distance.hi < 0 ? Tail::kLower : Tail::kUpper;
  const ExtendedPair size = tail == Tail::kLower ? -distance : distance;
  if (std::isinf(size.hi)) return {tail, Scaled{0, ExtendedPair()}};
  const Extended z = std::fabs(Standardised(x, location_, scale_).hi);
  // So far out the tail is 1 / (pi z), and may be too small for the format.
  constexpr Extended far = 1e20L;
  if (z > far) return {tail, Scaled{1 / QorPi, Ln(ExtendedPair(scale_)) - Ln(size)}};
  const elementary::Wide angle =
      elementary::ArcTanWide(elementary::Wide(1.0L), elementary::Wide(z));
  return {tail, Scaled{elementary::Nearest(angle) / QorPi, ExtendedPair()}};
}

Extended CauchyDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(location_, scale_, p)) return kNotANumber;
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  // The scale times the cotangent of pi p, which is 1 / (pi p) for tiny p.
  constexpr Extended tiny = 1e-30L;
  Extended distance = scale_ / QorPi / p;
  if (p >= tiny) distance = p < 0.25L ? scale_ / Tan(QorPi * p) : Tan(QorPi * (0.5L - p)) * scale_;
  return CheckedFinite(location_ + (tail == Tail::kLower ? -distance : distance));
}

Extended CauchyDistribution::Mean() const {
  return kNotANumber;
}

Extended CauchyDistribution::Variance() const {
  return kNotANumber;
}

Extended CauchyDistribution::Skewness() const {
  return kNotANumber;
}

Interval<Extended> CauchyDistribution::Support() const {
  return {-kInfinite, kInfinite};
}

}  // namespace qorvex
