#include "qorvex/stats/distributions/f_distribution.h"

#include <cmath>

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

namespace {

Extended CheckedDf1(Extended df1, Extended df2) {
  RequirePositive(df1, rsDF);
  RequirePositive(df2, rsDF);
  RequireShape(df1 / 2);
  RequireShape(df2 / 2);
  return df1;
}

}  // namespace

FDistribution::FDistribution(Extended df1, Extended df2)
    : df1_(CheckedDf1(df1, df2)),
      df2_(df2),
      ratio_(ExtendedPair(df2) / df1),
      beta_(df1 / 2, df2 / 2),
      tails_(beta_) {}

Extended FDistribution::Pdf(Extended x) const {
  if (AnyNaN(df1_, df2_, x)) return kNotANumber;
  if (x == 0) return DensityAtEnd(df1_ / 2, 1);
  if (x < 0 || std::isinf(x)) return 0;
  return (beta_.LogOddsDensity(OddsOf(x)) / Scaled(x)).Value();
}

Tails FDistribution::At(Extended x) const {
  if (AnyNaN(df1_, df2_, x)) return UnknownTails();
  if (x <= 0) return BelowAll();
  if (std::isinf(x)) return AboveAll();
  return tails_.At(OddsOf(x));
}

Extended FDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(df1_, df2_, p)) return kNotANumber;
  if (df1_ == df2_ && p == 0.5L) return 1;
  const Scaled odds = beta_.QuantileOdds(tail, p);
  return CheckedFinite((odds * Scaled(df2_) / Scaled(df1_)).Value());
}

Extended FDistribution::Mean() const {
  if (AnyNaN(df1_, df2_)) return kNotANumber;
  return df2_ > 2 ? df2_ / (df2_ - 2) : kInfinite;
}

Extended FDistribution::Variance() const {
  if (AnyNaN(df1_, df2_) || df2_ <= 2) return kNotANumber;
  if (df2_ <= 4) return kInfinite;
  const Extended mean = Mean();
  return 2 * mean * mean * (df1_ + df2_ - 2) / (df1_ * (df2_ - 4));
}

Extended FDistribution::Skewness() const {
  if (AnyNaN(df1_, df2_) || df2_ <= 4) return kNotANumber;
  if (df2_ <= 6) return kInfinite;
  return (2 * df1_ + df2_ - 2) / (df2_ - 6) *
         std::sqrt(8 * (df2_ - 4) / (df1_ * (df1_ + df2_ - 2)));
}

Extended FDistribution::Mode() const {
  if (AnyNaN(df1_, df2_)) return kNotANumber;
  return df1_ > 2 ? (df1_ - 2) / df1_ * (df2_ / (df2_ + 2)) : 0;
}

Interval<Extended> FDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
