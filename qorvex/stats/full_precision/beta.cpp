#include <cmath>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"
#include "qorvex/stats/full_precision/detail/whole_shapes.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

void Check(Extended a, Extended b) {
  RequirePositive(a, rsValueGZero);
  RequirePositive(b, rsValueGZero);
  RequireShape(a);
  RequireShape(b);
}

Odds OddsOf(Extended x) {
  return {x, special::ExactSum(1, -x)};
}

Tails TailsAt(Extended a, Extended b, Extended x) {
  Check(a, b);
  if (AnyNaN(a, b, x)) return Unknown();
  if (x <= 0) return BelowAll();
  if (x >= 1) return AboveAll();
  return BetaTails(a, b, OddsOf(x));
}

Extended Quantile(Extended a, Extended b, Tail tail, Extended p) {
  RequireProbability(p);
  Check(a, b);
  if (AnyNaN(a, b, p)) return kNaN;
  if (a == 1 && b == 1) return tail == Tail::kLower ? p : 1 - p;
  if (a == b && p == 0.5L) return p;
  return FromOdds(RegularisedBeta(a, b).QuantileOdds(tail, p));
}

}  // namespace

Extended BetaPdf(Extended a, Extended b, Extended x) {
  Check(a, b);
  if (AnyNaN(a, b, x)) return kNaN;
  if (x == 0) return DensityAtEnd(a, b);
  if (x == 1) return DensityAtEnd(b, a);
  if (x < 0 || x > 1) return 0;
  return BetaDensity(a, b, OddsOf(x));
}

Extended BetaLower(Extended a, Extended b, Extended x) {
  return TailsAt(a, b, x).Probability(Tail::kLower);
}

Extended BetaUpper(Extended a, Extended b, Extended x) {
  return TailsAt(a, b, x).Probability(Tail::kUpper);
}

Extended BetaLogLower(Extended a, Extended b, Extended x) {
  return TailsAt(a, b, x).LogProbability(Tail::kLower);
}

Extended BetaLogUpper(Extended a, Extended b, Extended x) {
  return TailsAt(a, b, x).LogProbability(Tail::kUpper);
}

Extended BetaQuantile(Extended a, Extended b, Extended p) {
  return Quantile(a, b, Tail::kLower, p);
}

Extended BetaUpperQuantile(Extended a, Extended b, Extended q) {
  return Quantile(a, b, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
