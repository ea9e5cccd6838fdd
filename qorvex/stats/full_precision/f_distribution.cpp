#include <cmath>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"
#include "qorvex/stats/full_precision/detail/whole_shapes.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

void Check(Extended df1, Extended df2) {
  RequirePositive(df1, rsDF);
  RequirePositive(df2, rsDF);
  RequireShape(df1 / 2);
  RequireShape(df2 / 2);
}

// f : df2 / df1, the odds of a beta variable.
Odds OddsOf(Extended df1, Extended df2, Extended f) {
  return {f, ExtendedPair(df2) / df1};
}

Tails TailsAt(Extended df1, Extended df2, Extended f) {
  Check(df1, df2);
  if (AnyNaN(df1, df2, f)) return Unknown();
  if (f <= 0) return BelowAll();
  if (std::isinf(f)) return AboveAll();
  return BetaTails(df1 / 2, df2 / 2, OddsOf(df1, df2, f));
}

Extended Quantile(Extended df1, Extended df2, Tail tail, Extended p) {
  RequireProbability(p);
  Check(df1, df2);
  if (AnyNaN(df1, df2, p)) return kNaN;
  if (df1 == df2 && p == 0.5L) return 1;
  const Scaled odds = RegularisedBeta(df1 / 2, df2 / 2).QuantileOdds(tail, p);
  return CheckedFinite((odds * Scaled{df2, ExtendedPair()} / Scaled{df1, ExtendedPair()}).Value());
}

}  // namespace

Extended FDistPdf(Extended df1, Extended df2, Extended f) {
  Check(df1, df2);
  if (AnyNaN(df1, df2, f)) return kNaN;
  if (f == 0) return DensityAtEnd(df1 / 2, 1);
  if (f < 0 || std::isinf(f)) return 0;
  // The density of x = f / (f + r) times dx/df = (1 - x)^2 / r for r = df2 / df1.
  const Scaled density = RegularisedBeta(df1 / 2, df2 / 2).Density(OddsOf(df1, df2, f), -1, 1);
  return (density / Scaled{df2 / df1, ExtendedPair()}).Value();
}

Extended FDistLower(Extended df1, Extended df2, Extended f) {
  return TailsAt(df1, df2, f).Probability(Tail::kLower);
}

Extended FDistUpper(Extended df1, Extended df2, Extended f) {
  return TailsAt(df1, df2, f).Probability(Tail::kUpper);
}

Extended FDistLogLower(Extended df1, Extended df2, Extended f) {
  return TailsAt(df1, df2, f).LogProbability(Tail::kLower);
}

Extended FDistLogUpper(Extended df1, Extended df2, Extended f) {
  return TailsAt(df1, df2, f).LogProbability(Tail::kUpper);
}

Extended FDistQuantile(Extended df1, Extended df2, Extended p) {
  return Quantile(df1, df2, Tail::kLower, p);
}

Extended FDistUpperQuantile(Extended df1, Extended df2, Extended q) {
  return Quantile(df1, df2, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
