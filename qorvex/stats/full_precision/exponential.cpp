#include <cmath>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

Tails TailsAt(Extended mean, Extended x) {
  RequirePositive(mean, rsExpDistInvalid);
  if (AnyNaN(mean, x)) return Unknown();
  if (x <= 0) return BelowAll();
  const ExtendedPair ratio = ExtendedPair(x) / mean;
  if (!(ratio.hi <= kLargest)) return AboveAll();
  // So far down the lower tail is the ratio, which may be too small for the format.
  constexpr Extended far_down = 1e-4900L;
  if (ratio.hi < far_down) return {Tail::kLower, Scaled{1, LnOfRatio(ratio, x, mean)}};
  if (ratio.hi < 1) return {Tail::kLower, Scaled{-std::expm1(-ratio.hi), ExtendedPair()}};
  return {Tail::kUpper, Scaled{1, -ratio}};
}

Extended Quantile(Extended mean, Tail tail, Extended p) {
  RequireProbability(p);
  RequirePositive(mean, rsExpDistInvalid);
  return CheckedFinite(-mean * (tail == Tail::kLower ? std::log1p(-p) : std::log(p)));
}

}  // namespace

Extended ExponentialPdf(Extended mean, Extended x) {
  RequirePositive(mean, rsExpDistInvalid);
  if (AnyNaN(mean, x)) return kNaN;
  const ExtendedPair ratio = ExtendedPair(x) / mean;
  if (x < 0 || !(ratio.hi <= kLargest)) return 0;
  return Scaled{1 / mean, -ratio}.Value();
}

Extended ExponentialLower(Extended mean, Extended x) {
  return TailsAt(mean, x).Probability(Tail::kLower);
}

Extended ExponentialUpper(Extended mean, Extended x) {
  return TailsAt(mean, x).Probability(Tail::kUpper);
}

Extended ExponentialLogLower(Extended mean, Extended x) {
  return TailsAt(mean, x).LogProbability(Tail::kLower);
}

Extended ExponentialLogUpper(Extended mean, Extended x) {
  return TailsAt(mean, x).LogProbability(Tail::kUpper);
}

Extended ExponentialQuantile(Extended mean, Extended p) {
  return Quantile(mean, Tail::kLower, p);
}

Extended ExponentialUpperQuantile(Extended mean, Extended q) {
  return Quantile(mean, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
