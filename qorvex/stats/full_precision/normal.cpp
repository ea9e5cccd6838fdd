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
  if (std::isinf(x)) return x < 0 ? BelowAll() : AboveAll();
  return StandardNormalTails(Standardised(x, mean, std_dev));
}

Extended Quantile(Extended mean, Extended std_dev, Tail tail, Extended p) {
  RequireProbability(p);
  RequireNormal(mean, std_dev);
  if (AnyNaN(mean, std_dev, p)) return kNaN;
  return CheckedFinite(StandardNormalQuantile(tail, p) * std_dev + mean);
}

}  // namespace

Extended NormalPdf(Extended mean, Extended std_dev, Extended x) {
  RequireNormal(mean, std_dev);
  if (AnyNaN(mean, std_dev, x)) return kNaN;
  if (std::isinf(x)) return 0;
  return NormalDensity(Standardised(x, mean, std_dev), std_dev).Value();
}

Extended NormalLower(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).Probability(Tail::kLower);
}

Extended NormalUpper(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).Probability(Tail::kUpper);
}

Extended NormalLogLower(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).LogProbability(Tail::kLower);
}

Extended NormalLogUpper(Extended mean, Extended std_dev, Extended x) {
  return TailsAt(mean, std_dev, x).LogProbability(Tail::kUpper);
}

Extended NormalQuantile(Extended mean, Extended std_dev, Extended p) {
  return Quantile(mean, std_dev, Tail::kLower, p);
}

Extended NormalUpperQuantile(Extended mean, Extended std_dev, Extended q) {
  return Quantile(mean, std_dev, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
