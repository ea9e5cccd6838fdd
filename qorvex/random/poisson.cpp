#include "qorvex/random/poisson.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/floor.h"
#include "qorvex/random/detail/poisson_densities.h"
#include "qorvex/random/exponential.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

namespace {

void RequireMean(Extended mu) {
  if (!(mu >= 0 && std::isfinite(mu))) RaiseMathError(rsInvalidValue);
}

// The probabilities of at most 0, 1, 2 and so on, one after the other.
class CumulativeProbability {
 public:
  explicit CumulativeProbability(Extended mu)
      : mu_(mu), probability_(Exp(-mu)), sum_(probability_) {}

  [[nodiscard]] Extended Value() const { return sum_; }
  void Advance() {
    probability_ *= mu_ / ++count_;
    sum_ += probability_;
  }

 private:
  Extended mu_;
  Extended count_ = 0;
  Extended probability_;
  Extended sum_;
};

constexpr int kMostByInversion = 35;

}  // namespace

PoissonSampler::CorrectedNormal::CorrectedNormal(Extended mean)
    : mu(mean), deviation(std::sqrt(mean)), accepted_from(detail::Floor(mean - 1.1484L)) {}

// The densities are computed where they are needed, which is rare.
Extended PoissonSampler::CorrectedNormal::operator()(UniformSource source) const {
  const Extended g = mu + deviation * Random_Normal(source);
  if (g >= 0) {
    const Extended k = detail::Floor(g);
    if (g >= accepted_from) return k;
    const Extended u = source();
    const Extended below = mu - k;
    if (6 * mu * mu * u >= below * below * below) return k;
    const detail::PoissonAndNormal at = detail::PoissonDensities(mu, deviation).At(k);
    if (at.n_factor * (1 - u) <= at.p_factor * Exp(at.p_exponent - at.n_exponent)) return k;
  }
  const detail::PoissonDensities densities(mu, deviation);
  const Extended c = 0.1069L / mu;
  for (;;) {
    const Extended exponential = Random_Exponential(source);
    const Extended u = 2 * source() - 1;
    const Extended t = 1.8L + (u < 0 ? -exponential : exponential);
    if (!(t > -0.6744L)) continue;
    const Extended k = detail::Floor(mu + deviation * t);
    const detail::PoissonAndNormal at = densities.At(k);
    if (c * std::fabs(u) <= at.p_factor * Exp(at.p_exponent + exponential) -
                                at.n_factor * Exp(at.n_exponent + exponential))
      return k;
  }
}

PoissonSampler::Inversion::Inversion(Extended mu) {
  CumulativeProbability probability(mu);
  for (Extended& sum : sums) {
    sum = probability.Value();
    probability.Advance();
  }
}

Extended PoissonSampler::Inversion::operator()(UniformSource source) const {
  for (;;) {
    const Extended u = source();
    for (int k = 0; k <= kMostByInversion; ++k) {
      if (u <= sums[static_cast<std::size_t>(k)]) return static_cast<Extended>(k);
    }
  }
}

PoissonSampler::Method PoissonSampler::MethodFor(Extended mu) {
  RequireMean(mu);
  if (mu >= 10) return Method(std::in_place_type<CorrectedNormal>, mu);
  return Method(std::in_place_type<Inversion>, mu);
}

PoissonSampler::PoissonSampler(Extended mu) : method_(MethodFor(mu)) {}

Extended PoissonSampler::operator()(UniformSource source) const {
  return std::visit([source](const auto& method) { return method(source); }, method_);
}

Extended Random_Poisson(const Extended& mu, UniformSource source) {
  if (!(mu < 10)) return PoissonSampler(mu)(source);
  RequireMean(mu);
  // A single variate needs only the first few sums.
  const CumulativeProbability at_zero(mu);
  for (;;) {
    const Extended u = source();
    CumulativeProbability probability = at_zero;
    for (int k = 0; k <= kMostByInversion; ++k, probability.Advance()) {
      if (u <= probability.Value()) return static_cast<Extended>(k);
    }
  }
}

}  // namespace qorvex::inline QorvexRandom
