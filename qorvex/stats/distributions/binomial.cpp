#include "qorvex/stats/distributions/binomial.h"

#include <cmath>

#include "qorvex/base/special/binomial.h"
#include "qorvex/base/special/symmetric_beta.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/counts.h"

namespace qorvex {

using namespace distributions;

BinomialDistribution::BinomialDistribution(Extended p, std::uint32_t n)
    : p_(p), n_(n), q_(special::ExactSum(1, -p)) {
  if (p < 0 || p > 1) RaiseMathError(rsBinomDistInvalid);
}

Extended BinomialDistribution::Pmf(std::uint32_t k) const {
  if (AnyNaN(p_)) return kNotANumber;
  if (k > n_) return 0;
  if (p_ == 0 || p_ == 1) return k == (p_ == 0 ? 0 : n_) ? 1 : 0;
  // Symmetric for one half.
  const bool mirrored = p_ == 0.5L && k > n_ / 2;
  return special::BinomialProbability(n_, mirrored ? n_ - k : k, p_, q_).Value();
}

Tails BinomialDistribution::At(std::uint32_t k) const {
  if (AnyNaN(p_)) return UnknownTails();
  if (k >= n_ || p_ == 0) return AboveAll();
  if (p_ == 1) return BelowAll();
  const special::SymmetricBeta failures(static_cast<Extended>(n_ - k),
                                        static_cast<Extended>(k) + 1);
  return failures.At({q_, p_});
}

std::uint32_t BinomialDistribution::Quantile(Tail tail, Extended p) const {
  RequireCountable(p);
  if (AnyNaN(p_)) RaiseMathError(rsBinomDistInvalid);
  return SmallestCount(*this, tail, p);
}

Extended BinomialDistribution::Mean() const {
  return n_ * p_;
}

Extended BinomialDistribution::Variance() const {
  return n_ * p_ * (1 - p_);
}

Extended BinomialDistribution::Skewness() const {
  const Extended variance = Variance();
  return variance == 0 ? kNotANumber : (1 - 2 * p_) / std::sqrt(variance);
}

std::uint32_t BinomialDistribution::Mode() const {
  if (AnyNaN(p_)) RaiseMathError(rsBinomDistInvalid);
  const special::ExtendedPair bound = special::ExactProduct(static_cast<Extended>(n_) + 1, p_);
  return CountBelow(bound, n_);
}

Interval<std::uint32_t> BinomialDistribution::Support() const {
  return {0, n_};
}

}  // namespace qorvex
