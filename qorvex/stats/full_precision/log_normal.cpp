#include <cmath>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"
#include "qorvex/stats/full_precision/detail/standard_normal.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

Tails TailsAt(Extended mean, Extended std_dev, Extended x) {
  RequireNormal(mean, std_dev);
  if (AnyNaN(mean, std_dev, x)) return Unknown();
  if (x <= 0) return BelowAll();
  if (std::isinf(x)) return AboveAll();
  return StandardNormalTails(Standardised(Ln(ExtendedPair(x)), mean, std_dev));
}

Extended Quantile(Extended mean, Extended std_dev, Tail tail, Extended p) {
  RequireProbability(p);
  RequireNormal(mean, std_dev);
  if (AnyNaN(mean, std_dev, p)) return kNaN;
  return CheckedFinite(Scaled{1, RefinedNormalQuantile(tail, p) * std_dev + mean}.Value());
}

}  // namespace

Extended LogNormalPdf(Extended mean, Extended std_dev, Extended x) {
  RequireNormal(mean, std_dev);
  if (AnyNaN(mean, std_dev, x)) return kNaN;
  if (x <= 0 || std::isinf(x)) return 0;
  const ExtendedPair ln_x = Ln(ExtendedPair(x));
  const Scaled density = NormalDensity(Standardised(ln_x, mean, std_dev), std_dev);
  if (std::isinf(density.exponent.hi)) return 0;
  return (density * Scaled{1, -ln_x}).Value();
}

Extended LogNormalLower(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).Probability(Tail::kLower);
}

Extended LogNormalUpper(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).Probability(Tail::kUpper);
}

Extended LogNormalLogLower(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).LogProbability(Tail::kLower);
}

Extended LogNormalLogUpper(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).LogProbability(Tail::kUpper);
}

Extended LogNormalQuantile(Extended mean, Extended std_dev, Extended p) {
  return Quantile(mean, std_dev, Tail::kLower, p);
}

Extended LogNormalUpperQuantile(Extended mean, Extended std_dev, Extended q) {
  return Quantile(mean, std_dev, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
