#include "qorvex/random/beta.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

namespace {

// ln 4, with the digits that the method gives it.
constexpr Extended kLogFour = 1.3862943611198906L;

// For draws from this limit on, the candidate would exceed the largest value.
Extended Limit(Extended hi, Extended lo) {
  if (lo > 1) return 1;
  // The power is rarely needed: if it is below 2^-64, the limit rounds to 1.
  if (lo * std::ilogb(lo * detail::kVeryLarge / hi) > 64) return 1;
  return 1 / (1 + XtoY(hi / (lo * detail::kVeryLarge), lo));
}

}  // namespace

BetaSampler::BetaSampler(Extended a, Extended b) : is_exchanged_(a < b), hi_(std::max(a, b)) {
  if (!(a > 0 && b > 0)) RaiseMathError(rsInvalidValue);
  const Extended lo = std::min(a, b);
  ratio_ = hi_ / lo;
  sum_ = lo + hi_;
  // For larger shapes, rounding would decide which candidates are accepted.
  constexpr Extended largest_sum = 1e18L;
  if (!(sum_ <= largest_sum && std::isfinite(ratio_))) RaiseMathError(rsInvalidValue);
  shape_ = lo <= 1 ? lo : std::sqrt((2 * lo * hi_ - sum_) / (sum_ - 2));
  limit_ = Limit(hi_, lo);
}

Extended BetaSampler::Ordered(UniformSource source) const {
  for (;;) {
    const Extended u1 = source();
    const Extended u2 = source();
    const Extended z = u2 * (u1 * u1);
    if (!(u1 >= detail::kVerySmall && z > 0)) continue;
    if (u1 >= limit_) {
      if (4 * z <= XtoY(1 + 1 / ratio_, sum_)) return 1;
      continue;
    }
    const Extended v = Log(u1 / (1 - u1)) / shape_;
    const Extended w = ratio_ * Exp(v);
    const Extended t = v * (shape_ + hi_) + sum_ * Log((ratio_ + 1) / (w + 1)) - kLogFour;
    if (z - 1 <= t || (z - z * t <= 1 && Log(z) <= t)) return w / (1 + w);
  }
}

Extended BetaSampler::operator()(UniformSource source) const {
  const Extended variate = Ordered(source);
  return is_exchanged_ ? 1 - variate : variate;
}

Extended Random_Beta(Extended a, Extended b, UniformSource source) {
  return BetaSampler(a, b)(source);
}

}  // namespace qorvex::inline QorvexRandom
