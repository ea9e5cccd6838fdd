#include "qorvex/stats/distributions/student_t.h"

#include <cmath>

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

namespace {

Extended CheckedDf(Extended df) {
  RequirePositive(df, rsDF);
  RequireShape(df / 2);
  return df;
}

// This close to 0 the distribution function is 1/2, and the density that at this point.
constexpr Extended kCentre = 1e-30L;

}  // namespace

StudentTDistribution::StudentTDistribution(Extended df) : df_(CheckedDf(df)), beta_(df / 2, 0.5L) {}

special::Odds StudentTDistribution::OddsOf(Extended x) const {
  return {ExtendedPair(df_) / x, x};
}

Extended StudentTDistribution::Pdf(Extended x) const {
  if (AnyNaN(df_, x)) return kNotANumber;
  if (std::isinf(x)) return 0;
  // ln x and -x change by half the logarithm of the odds, and either sign has half of the density.
  const Extended size = std::fmax(std::fabs(x), kCentre);
  return (beta_.LogOddsDensity(OddsOf(size)) / Scaled(size)).Value();
}

Tails StudentTDistribution::At(Extended x) const {
  if (AnyNaN(df_, x)) return UnknownTails();
  if (x < 0) return At(-x).Mirrored();
  if (std::isinf(x)) return AboveAll();
  if (x < kCentre) return {Tail::kUpper, 0.5L};
  // Half of what lies beyond -x and x.
  return {Tail::kUpper, beta_.At(OddsOf(x)).ScaledProbability(Tail::kLower) * 0.5L};
}

Extended StudentTDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(df_, p)) return kNotANumber;
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  if (p == 0.5L) return 0;
  const Scaled odds = beta_.QuantileOdds(Tail::kLower, 2 * p);
  const Extended x = CheckedFinite(SquareRoot(Scaled(df_) / odds).Value());
  // An x of 0 has no sign.
  return tail == Tail::kUpper ? x : 0 - x;
}

Extended StudentTDistribution::Mean() const {
  return df_ > 1 ? 0 : kNotANumber;
}

Extended StudentTDistribution::Variance() const {
  if (df_ > 2) return df_ / (df_ - 2);
  return df_ > 1 ? kInfinite : kNotANumber;
}

Extended StudentTDistribution::Skewness() const {
  return df_ > 3 ? 0 : kNotANumber;
}

Interval<Extended> StudentTDistribution::Support() const {
  return {-kInfinite, kInfinite};
}

}  // namespace qorvex
