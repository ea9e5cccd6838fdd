#include "qorvex/stats/distributions/geometric.h"

#include <cmath>
#include <limits>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/counts.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

GeometricDistribution::GeometricDistribution(Extended p) : p_(p) {
  RequirePositive(p, rsInvalidValue);
  if (p > 1) RaiseMathError(rsInvalidValue);
  if (p < 1) ln_q_ = PairOf(elementary::Log1pWide(-p));
}

Extended GeometricDistribution::Pmf(std::uint32_t k) const {
  if (AnyNaN(p_)) return kNotANumber;
  if (p_ == 1) return k == 0 ? 1 : 0;
  return Scaled{p_, ln_q_ * static_cast<Extended>(k)}.Value();
}

Tails GeometricDistribution::At(std::uint32_t k) const {
  if (AnyNaN(p_)) return UnknownTails();
  if (p_ == 1) return AboveAll();
  const ExtendedPair ln_upper = ln_q_ * (static_cast<Extended>(k) + 1);
  constexpr Extended lower_tail_above = -0.7L;
  if (ln_upper.hi < lower_tail_above) return {Tail::kUpper, Scaled{1, ln_upper}};
  const elementary::Wide lower = -elementary::Expm1Wide(elementary::Wide(ln_upper));
  return {Tail::kLower, special::MakeScaled(lower)};
}

std::uint32_t GeometricDistribution::Quantile(Tail tail, Extended p) const {
  RequireCountable(p);
  if (AnyNaN(p_)) RaiseMathError(rsInvalidValue);
  return SmallestCount(*this, tail, p);
}

Extended GeometricDistribution::Mean() const {
  return (1 - p_) / p_;
}

Extended GeometricDistribution::Variance() const {
  return (1 - p_) / p_ / p_;
}

Extended GeometricDistribution::Skewness() const {
  return p_ == 1 ? kNotANumber : (2 - p_) / std::sqrt(1 - p_);
}

std::uint32_t GeometricDistribution::Mode() const {
  if (AnyNaN(p_)) RaiseMathError(rsInvalidValue);
  return 0;
}

Interval<std::uint32_t> GeometricDistribution::Support() const {
  return {0, std::numeric_limits<std::uint32_t>::max()};
}

}  // namespace qorvex
