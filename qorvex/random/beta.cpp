#include "qorvex/random/beta.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

namespace {

// A variate for a first shape that is not the smaller one.
Extended OrderedBeta(Extended hi, Extended lo, UniformSource source) {
  const Extended ratio = hi / lo;
  const Extended sum = lo + hi;
  const bool has_pole = lo <= 1;
  const Extended shape = has_pole ? lo : std::sqrt((2 * lo * hi - sum) / (sum - 2));
  // From this draw on, the candidate would be beyond the largest value.
  const Extended limit = has_pole ? 1 / (1 + XtoY(hi / (lo * detail::kVeryLarge), lo)) : 1;
  if (!std::isfinite(ratio) || !std::isfinite(shape)) RaiseMathError(rsInvalidValue);
  for (;;) {
    const Extended u1 = source();
    const Extended u2 = source();
    const Extended z = u2 * (u1 * u1);
    if (!(u1 >= detail::kVerySmall && z > 0)) continue;
    if (u1 >= limit) {
      if (4 * z <= XtoY(1 + 1 / ratio, sum)) return 1;
      continue;
    }
    const Extended v = std::log(u1 / (1 - u1)) / shape;
    const Extended w = ratio * std::exp(v);
    const Extended t =
        v * (shape + hi) + sum * std::log((ratio + 1) / (w + 1)) - 1.3862943611198906L;
    if (z - 1 <= t || (z - z * t <= 1 && std::log(z) <= t)) return w / (1 + w);
  }
}

}  // namespace

Extended Random_Beta(Extended a, Extended b, UniformSource source) {
  if (!(a > 0 && b > 0)) RaiseMathError(rsInvalidValue);
  const Extended variate = OrderedBeta(std::max(a, b), std::min(a, b), source);
  return a < b ? 1 - variate : variate;
}

}  // namespace qorvex::inline QorvexRandom
