#include "qorvex/random/poisson.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/poisson_densities.h"
#include "qorvex/random/exponential.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

namespace {

// For means from 10 on: a normal variate rounded down. Where its probability exceeds the Poisson
// probability it is accepted only in part; the rest comes from the difference of the two, drawn
// under a double exponential hat.
Extended CorrectedNormal(Extended mu, UniformSource source) {
  const Extended deviation = std::sqrt(mu);
  const Extended g = mu + deviation * Random_Normal(source);
  if (g >= 0) {
    const Extended k = std::floor(g);
    if (k >= std::floor(mu - 1.1484L)) return k;
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
    const Extended k = std::floor(mu + deviation * t);
    const detail::PoissonAndNormal at = densities.At(k);
    if (c * std::fabs(u) <= at.p_factor * Exp(at.p_exponent + exponential) -
                                at.n_factor * Exp(at.n_exponent + exponential))
      return k;
  }
}

// For smaller means: inversion from 0 upwards.
Extended InvertFromZero(Extended mu, UniformSource source) {
  const Extended at_zero = Exp(-mu);
  for (;;) {
    const Extended u = source();
    if (u <= at_zero) return 0;
    Extended probability = at_zero;
    Extended sum = at_zero;
    for (int k = 1; k <= 35; ++k) {
      probability *= mu / static_cast<Extended>(k);
      sum += probability;
      if (u <= sum) return static_cast<Extended>(k);
    }
  }
}

}  // namespace

Extended Random_Poisson(const Extended& mu, UniformSource source) {
  if (!(mu >= 0 && std::isfinite(mu))) RaiseMathError(rsInvalidValue);
  return mu >= 10 ? CorrectedNormal(mu, source) : InvertFromZero(mu, source);
}

}  // namespace qorvex::inline QorvexRandom
