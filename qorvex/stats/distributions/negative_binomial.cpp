#include "qorvex/stats/distributions/negative_binomial.h"

#include <cmath>
#include <limits>

#include "qorvex/base/special/symmetric_beta.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/counts.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;

NegativeBinomialDistribution::NegativeBinomialDistribution(Extended p, Extended failures)
    : p_(p), failures_(failures), q_(special::ExactSum(1, -p)) {
  if (p <= 0 || p >= 1 || failures <= 0) RaiseMathError(rsInvalidValue);
  RequireShape(failures);
}

Extended NegativeBinomialDistribution::Pmf(std::uint32_t k) const {
  if (AnyNaN(p_, failures_)) return kNotANumber;
  // q^r p^k / B(r, k) divided by k; without k, q^r.
  if (k == 0) return special::Power(q_, failures_).Value();
  const auto count = static_cast<Extended>(k);
  const special::RegularisedBeta beta(failures_, count);
  return (beta.LogOddsDensity({q_, p_}) / special::Scaled(count)).Value();
}

Tails NegativeBinomialDistribution::At(std::uint32_t k) const {
  if (AnyNaN(p_, failures_)) return UnknownTails();
  return special::SymmetricBeta(failures_, static_cast<Extended>(k) + 1).At({q_, p_});
}

std::uint32_t NegativeBinomialDistribution::Quantile(Tail tail, Extended p) const {
  RequireCountable(p);
  if (AnyNaN(p_, failures_)) RaiseMathError(rsInvalidValue);
  return SmallestCount(*this, tail, p);
}

Extended NegativeBinomialDistribution::Mean() const {
  return failures_ * p_ / q_.hi;
}

Extended NegativeBinomialDistribution::Variance() const {
  return Mean() / q_.hi;
}

Extended NegativeBinomialDistribution::Skewness() const {
  return (1 + p_) / std::sqrt(failures_ * p_);
}

std::uint32_t NegativeBinomialDistribution::Mode() const {
  if (AnyNaN(p_, failures_)) RaiseMathError(rsInvalidValue);
  if (failures_ <= 1) return 0;
  return CountBelow(special::ExactSum(failures_, -1) * p_ / q_,
                    std::numeric_limits<std::uint32_t>::max());
}

Interval<std::uint32_t> NegativeBinomialDistribution::Support() const {
  return {0, std::numeric_limits<std::uint32_t>::max()};
}

}  // namespace qorvex
