#include <cmath>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

void Check(Extended df) {
  RequirePositive(df, rsDF);
  RequireShape(df / 2);
}

// df / t : t for t > 0, the odds of the beta variable df / (df + t^2).
Odds OddsOf(Extended df, Extended t) {
  return {ExtendedPair(df) / t, t};
}

// So near to 0 the distribution function is 1/2, and the density that at 0.
constexpr Extended kCentre = 1e-30L;

Tails TailsAt(Extended df, Extended t) {
  Check(df);
  if (AnyNaN(df, t)) return Unknown();
  if (t < 0) return TailsAt(df, -t).Mirrored();
  if (std::isinf(t)) return AboveAll();
  if (t < kCentre) return {Tail::kUpper, Scaled{0.5L, ExtendedPair()}};
  // Half of what lies beyond -t and t.
  Scaled beyond = RegularisedBeta(df / 2, 0.5L).At(OddsOf(df, t)).ScaledProbability(Tail::kLower);
  beyond.factor /= 2;
  return {Tail::kUpper, beyond};
}

Extended Quantile(Extended df, Tail tail, Extended p) {
  RequireProbability(p);
  Check(df);
  if (AnyNaN(df, p)) return kNaN;
  if (p > 0.5L) return Quantile(df, Opposite(tail), 1 - p);
  if (p == 0.5L) return 0;
  const Scaled odds = RegularisedBeta(df / 2, 0.5L).QuantileOdds(Tail::kLower, 2 * p);
  const Extended t = CheckedFinite(SquareRoot(Scaled{df, ExtendedPair()} / odds).Value());
  // A t of 0 has no sign.
  return tail == Tail::kUpper ? t : 0 - t;
}

}  // namespace

Extended StudentTPdf(Extended df, Extended t) {
  Check(df);
  if (AnyNaN(df, t)) return kNaN;
  if (std::isinf(t)) return 0;
  // x^((df + 1) / 2) / (sqrt(df) B(df / 2, 1 / 2)) for x = df / (df + t^2)
  const RegularisedBeta beta(df / 2, 0.5L);
  const Scaled density = std::fabs(t) < kCentre
                             ? beta.InverseBeta()
                             : beta.Density(OddsOf(df, std::fabs(t)), 0.5L, -0.5L);
  return (density / Scaled{std::sqrt(df), ExtendedPair()}).Value();
}

Extended StudentTLower(Extended df, Extended t) {
  return TailsAt(df, t).Probability(Tail::kLower);
}

Extended StudentTUpper(Extended df, Extended t) {
  return TailsAt(df, t).Probability(Tail::kUpper);
}

Extended StudentTLogLower(Extended df, Extended t) {
  return TailsAt(df, t).LogProbability(Tail::kLower);
}

Extended StudentTLogUpper(Extended df, Extended t) {
  return TailsAt(df, t).LogProbability(Tail::kUpper);
}

Extended StudentTQuantile(Extended df, Extended p) {
  return Quantile(df, Tail::kLower, p);
}

Extended StudentTUpperQuantile(Extended df, Extended q) {
  return Quantile(df, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
