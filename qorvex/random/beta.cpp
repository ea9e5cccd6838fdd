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

// The variate with the first shape hi and the second shape lo, for hi >= lo.
Extended OrderedBeta(Extended hi, Extended lo, UniformSource source) {
  const Extended ratio = hi / lo;
  const Extended sum = lo + hi;
  const Extended shape = lo <= 1 ? lo : std::sqrt((2 * lo * hi - sum) / (sum - 2));
  const Extended limit = Limit(hi, lo);
  // For larger shapes, rounding would decide which candidates are accepted.
  constexpr Extended largest_sum = 1e18L;
  if (!(sum <= largest_sum && std::isfinite(ratio))) RaiseMathError(rsInvalidValue);
  for (;;) {
    const Extended u1 = source();
    const Extended u2 = source();
    const Extended z = u2 * (u1 * u1);
    if (!(u1 >= detail::kVerySmall && z > 0)) continue;
    if (u1 >= limit) {
      if (4 * z <= XtoY(1 + 1 / ratio, sum)) return 1;
      continue;
    }
    const Extended v = Log(u1 / (1 - u1)) / shape;
    const Extended w = ratio * Exp(v);
    const Extended t = v * (shape + hi) + sum * Log((ratio + 1) / (w + 1)) - kLogFour;
    if (z - 1 <= t || (z - z * t <= 1 && Log(z) <= t)) return w / (1 + w);
  }
}

}  // namespace

Extended Random_Beta(Extended a, Extended b, UniformSource source) {
  if (!(a > 0 && b > 0)) RaiseMathError(rsInvalidValue);
  const Extended variate = OrderedBeta(std::max(a, b), std::min(a, b), source);
  return a < b ? 1 - variate : variate;
}

}  // namespace qorvex::inline QorvexRandom
