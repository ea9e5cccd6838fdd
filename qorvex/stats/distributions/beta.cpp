#include "qorvex/stats/distributions/beta.h"

#include <cmath>

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;

namespace {

Extended CheckedA(Extended a, Extended b) {
  RequirePositive(a, rsValueGZero);
  RequirePositive(b, rsValueGZero);
  RequireShape(a);
  RequireShape(b);
  return a;
}

special::Odds OddsOf(Extended x) {
  return {x, special::ExactSum(1, -x)};
}

}  // namespace

BetaDistribution::BetaDistribution(Extended a, Extended b)
    : a_(CheckedA(a, b)), b_(b), beta_(a, b), tails_(beta_) {}

Extended BetaDistribution::Pdf(Extended x) const {
  if (AnyNaN(a_, b_, x)) return kNotANumber;
  if (x == 0) return DensityAtEnd(a_, b_);
  if (x == 1) return DensityAtEnd(b_, a_);
  if (x < 0 || x > 1) return 0;
  return tails_.Density(OddsOf(x));
}

Tails BetaDistribution::At(Extended x) const {
  if (AnyNaN(a_, b_, x)) return UnknownTails();
  if (x <= 0) return BelowAll();
  if (x >= 1) return AboveAll();
  return tails_.At(OddsOf(x));
}

Extended BetaDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(a_, b_, p)) return kNotANumber;
  if (a_ == 1 && b_ == 1) return tail == Tail::kLower ? p : 1 - p;
  if (a_ == b_ && p == 0.5L) return p;
  return FromOdds(beta_.QuantileOdds(tail, p));
}

Extended BetaDistribution::Mean() const {
  return a_ / (a_ + b_);
}

Extended BetaDistribution::Variance() const {
  const Extended sum = a_ + b_;
  return a_ / sum * (b_ / sum) / (sum + 1);
}

Extended BetaDistribution::Skewness() const {
  const Extended sum = a_ + b_;
  return 2 * (b_ - a_) / (sum + 2) * std::sqrt((sum + 1) / a_ / b_);
}

Extended BetaDistribution::Mode() const {
  if (AnyNaN(a_, b_)) return kNotANumber;
  if (a_ > 1 && b_ > 1) return (a_ - 1) / ((a_ - 1) + (b_ - 1));
  // The density has its maximum at an end: at 0 if it rises there, or falls to 1.
  return a_ < 1 || b_ > 1 || (a_ == 1 && b_ == 1) ? 0 : 1;
}

Interval<Extended> BetaDistribution::Support() const {
  return {0, 1};
}

}  // namespace qorvex
