#include "qorvex/stats/distributions/poisson.h"

#include <cmath>
#include <limits>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/counts.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::RegularisedGamma;
using special::Scaled;

namespace {

// Nothing is computed at the point of NaN.
RegularisedGamma::Point PointOf(Extended lambda) {
  RequirePositive(lambda, rsPoissonInvalid);
  return RegularisedGamma::Point(ExtendedPair(std::isnan(lambda) ? 1 : lambda));
}

}  // namespace

PoissonDistribution::PoissonDistribution(Extended lambda)
    : lambda_(lambda), point_(PointOf(lambda)) {}

Extended PoissonDistribution::Pmf(std::uint32_t k) const {
  if (AnyNaN(lambda_)) return kNotANumber;
  if (k == 0) return Exp(-lambda_);
  // lambda^k e^-lambda / Gamma(k) divided by k.
  const auto count = static_cast<Extended>(k);
  return (RegularisedGamma(count).LogDensity(point_) / Scaled(count)).Value();
}

Tails PoissonDistribution::At(std::uint32_t k) const {
  if (AnyNaN(lambda_)) return UnknownTails();
  return RegularisedGamma(static_cast<Extended>(k) + 1).At(point_).Mirrored();
}

std::uint32_t PoissonDistribution::Quantile(Tail tail, Extended p) const {
  RequireCountable(p);
  if (AnyNaN(lambda_)) RaiseMathError(rsPoissonInvalid);
  return SmallestCount(*this, tail, p);
}

Extended PoissonDistribution::Mean() const {
  return lambda_;
}

Extended PoissonDistribution::Variance() const {
  return lambda_;
}

Extended PoissonDistribution::Skewness() const {
  return 1 / std::sqrt(lambda_);
}

std::uint32_t PoissonDistribution::Mode() const {
  if (AnyNaN(lambda_)) RaiseMathError(rsPoissonInvalid);
  return CountBelow(lambda_, std::numeric_limits<std::uint32_t>::max());
}

Interval<std::uint32_t> PoissonDistribution::Support() const {
  return {0, std::numeric_limits<std::uint32_t>::max()};
}

}  // namespace qorvex
