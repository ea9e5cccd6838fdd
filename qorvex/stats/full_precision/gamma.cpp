#include <cmath>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

void Check(Extended shape, Extended scale) {
  RequirePositive(shape, rsValueGZero);
  RequirePositive(scale, rsValueGZero);
  RequireShape(shape);
}

Tails TailsAt(Extended shape, Extended scale, Extended x) {
  Check(shape, scale);
  if (AnyNaN(shape, scale, x)) return Unknown();
  if (x <= 0) return BelowAll();
  if (std::isinf(x)) return AboveAll();
  const RegularisedGamma::Point point(x, scale);
  if (!(point.x.hi <= kLargest)) return AboveAll();
  return RegularisedGamma(shape).At(point);
}

Extended Quantile(Extended shape, Extended scale, Tail tail, Extended p) {
  RequireProbability(p);
  Check(shape, scale);
  if (AnyNaN(shape, scale, p)) return kNaN;
  return CheckedFinite(RegularisedGamma(shape).Quantile(tail, p) * scale);
}

}  // namespace

Extended GammaPdf(Extended shape, Extended scale, Extended x) {
  Check(shape, scale);
  if (AnyNaN(shape, scale, x)) return kNaN;
  if (x == 0) return DensityAtEnd(shape, 1 / scale);
  if (x < 0 || std::isinf(x)) return 0;
  const RegularisedGamma::Point point(x, scale);
  if (!(point.x.hi <= kLargest)) return 0;
  const Scaled density = RegularisedGamma(shape).Density(point, -1);
  // As a factor a scale near the ends of the format could overflow.
  const bool moderate = scale > 1e-2000L && scale < 1e2000L;
  const Scaled divisor =
      moderate ? Scaled{scale, ExtendedPair()} : Scaled{1, Ln(ExtendedPair(scale))};
  return (density / divisor).Value();
}

Extended GammaLower(Extended shape, Extended scale, Extended x) {
  return TailsAt(shape, scale, x).Probability(Tail::kLower);
}

Extended GammaUpper(Extended shape, Extended scale, Extended x) {
  return TailsAt(shape, scale, x).Probability(Tail::kUpper);
}

Extended GammaLogLower(Extended shape, Extended scale, Extended x) {
  return TailsAt(shape, scale, x).LogProbability(Tail::kLower);
}

Extended GammaLogUpper(Extended shape, Extended scale, Extended x) {
  return TailsAt(shape, scale, x).LogProbability(Tail::kUpper);
}

Extended GammaQuantile(Extended shape, Extended scale, Extended p) {
  return Quantile(shape, scale, Tail::kLower, p);
}

Extended GammaUpperQuantile(Extended shape, Extended scale, Extended q) {
  return Quantile(shape, scale, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
