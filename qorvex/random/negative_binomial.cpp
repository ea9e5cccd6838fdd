#include "qorvex/random/negative_binomial.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/floor.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/detail/power_of_complement.h"

namespace qorvex::inline QorvexRandom {

NegativeBinomialSampler::NegativeBinomialSampler(Extended sk, Extended p) : p_(p) {
  if (!(sk > 0 && p > 0 && p < 1)) RaiseMathError(rsInvalidValue);
  // A step takes about 65 ns.
  constexpr Extended max_steps = 2e7L;
  direct_ = p > 0.7L ? std::trunc(sk) : 0;
  rest_ = sk - direct_;
  if (direct_ > max_steps || rest_ * p / (1 - p) > max_steps) RaiseMathError(rsInvalidValue);
  // The probability of 0 would underflow.
  if (Log(detail::kVerySmall) / Log1p(-p) < rest_) RaiseMathError(rsInvalidValue);
  log_p_ = direct_ > 0 ? Log(p) : 0;
  at_zero_ = detail::PowerOfComplement(p, rest_);
}

Extended NegativeBinomialSampler::Invert(Extended u) const {
  Extended probability = at_zero_;
  Extended g = rest_;
  Extended s = 0;
  while (probability <= u) {
    u -= probability;
    ++s;
    const Extended next = g * p_ * probability / s;
    ++g;
    // Rounding can leave the sum of all probabilities below the draw. Then the remaining terms are
    // too small to reach it.
    if (next < probability && u - next == u) break;
    probability = next;
  }
  return s;
}

Extended NegativeBinomialSampler::operator()(UniformSource source) const {
  Extended x = 0;
  for (Extended i = 0; i < direct_; ++i) {
    Extended r = source();
    while (!(r > 0)) r = source();
    x += std::trunc(Log(r) / log_p_);
  }
  return detail::Floor(x + Invert(source()) + 0.5L);
}

Extended Random_Neg_Binomial(Extended sk, Extended p, UniformSource source) {
  return NegativeBinomialSampler(sk, p)(source);
}

}  // namespace qorvex::inline QorvexRandom
