#include "qorvex/stats/distributions/log_normal.h"

#include <cmath>
#include <limits>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/normal_wide.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"

namespace qorvex {

using namespace distributions;
using elementary::LogWide;
using special::Scaled;

void LogNormalDistribution::RequireValid() const {
  RequireNormal(log_mean_, log_std_dev_);
}

Extended LogNormalDistribution::Pdf(Extended x) const {
  if (AnyNaN(log_mean_, log_std_dev_, x)) return kNotANumber;
  if (!IsPositive(x) || IsInfinite(x)) return 0;
  const Wide z = Standardised(LogWide(Wide(x)), log_mean_, log_std_dev_);
  const Wide density = special::NormalDensityWide(z);
  return density.IsZero() ? 0 : Nearest(QuickQuotient(density, Wide(x) * Wide(log_std_dev_)));
}

Tails LogNormalDistribution::At(Extended x) const {
  if (AnyNaN(log_mean_, log_std_dev_, x)) return UnknownTails();
  if (!IsPositive(x)) return BelowAll();
  if (IsInfinite(x)) return AboveAll();
  return StandardNormalTails(Standardised(LogWide(Wide(x)), log_mean_, log_std_dev_));
}

Extended LogNormalDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(log_mean_, log_std_dev_, p)) return kNotANumber;
  const Wide log = WideNormalQuantile(tail, p) * Wide(log_std_dev_) + Wide(log_mean_);
  constexpr std::int64_t beyond = 30;
  if (log.exponent < beyond) return CheckedNearest(elementary::ExpWide(log));
  return log.negative ? 0 : throw EOverflow();
}

Extended LogNormalDistribution::Mean() const {
  return Exp(log_mean_ + log_std_dev_ * log_std_dev_ / 2);
}

Extended LogNormalDistribution::Variance() const {
  // e^(2 m + s^2) (e^(s^2) - 1), arranged so that no factor leaves the format before the product
  // does.
  const Extended square = log_std_dev_ * log_std_dev_;
  const Extended root = Exp(log_mean_ + square);
  if (square < std::numeric_limits<Extended>::min()) {
    const Extended std_dev = Scaled{log_std_dev_, log_mean_}.Value();
    return std_dev * std_dev;
  }
  return -Expm1(-square) * root * root;
}

Extended LogNormalDistribution::Skewness() const {
  const Extended square = log_std_dev_ * log_std_dev_;
  return (Exp(square) + 2) * std::sqrt(Expm1(square));
}

Extended LogNormalDistribution::Mode() const {
  return Exp(log_mean_ - log_std_dev_ * log_std_dev_);
}

Interval<Extended> LogNormalDistribution::Support() const {
  return {0, kInfinite};
}

}  // namespace qorvex
