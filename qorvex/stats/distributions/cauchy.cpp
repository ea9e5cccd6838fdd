#include "qorvex/stats/distributions/cauchy.h"

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/location_scale.h"

namespace qorvex {

using namespace distributions;
using special::kOne;
using special::kWidePi;

namespace {

Wide Distance(Extended x, Extended location, Extended scale) {
  const Wide z = Standardised(Wide(x), location, scale);
  return {z.mantissa, z.exponent};
}

// The cotangent of pi p for 0 < p < 1/2.
Wide CotangentOfPi(Extended p) {
  constexpr Extended tiny = 1e-30L;
  if (p < tiny) return kOne / (kWidePi * Wide(p));
  // From 1/4 on it is the tangent of the rest of the right angle.
  const bool is_flat = p > 0.25L;
  const Wide angle = kWidePi * Wide(is_flat ? 0.5L - p : p);
  const Extended near = Nearest(angle);
  const Wide rest = angle - Wide(near);
  const auto [sine, cosine] = elementary::SinCosWide(near);
  // For the angle near + rest, where squares of the rest are negligible.
  const Wide y = sine + cosine * rest;
  const Wide x = cosine - sine * rest;
  return is_flat ? y / x : x / y;
}

}  // namespace

CauchyDistribution::CauchyDistribution(Extended location, Extended scale)
    : location_(location), scale_(scale) {
  RequirePositive(scale, rsValueGZero);
  RequireFinite(location);
}

Extended CauchyDistribution::Pdf(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return kNotANumber;
  if (IsInfinite(x)) return 0;
  const Wide z = Distance(x, location_, scale_);
  return Nearest(kOne / (kWidePi * Wide(scale_) * (kOne + z * z)));
}

Tails CauchyDistribution::At(Extended x) const {
  if (AnyNaN(location_, scale_, x)) return UnknownTails();
  if (IsInfinite(x)) return x < 0 ? BelowAll() : AboveAll();
  const Wide angle = elementary::ArcTanWide(kOne, Distance(x, location_, scale_));
  return {x < location_ ? Tail::kLower : Tail::kUpper, special::MakeScaled(angle / kWidePi)};
}

Extended CauchyDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(location_, scale_, p)) return kNotANumber;
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  const Wide distance = CotangentOfPi(p);
  return PointAt(tail == Tail::kLower ? -distance : distance, location_, scale_);
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
