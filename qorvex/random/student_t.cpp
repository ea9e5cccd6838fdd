#include "qorvex/random/student_t.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexRandom {

Extended Random_T(std::int32_t df, UniformSource source) {
  if (df < 1) RaiseMathError(rsInvalidValue);
  const Extended s = static_cast<Extended>(df);
  const Extended c = -0.25L * (s + 1);
  // (1 + x/s)^c. Only comparisons use it, so the accuracy of XtoY, which takes four times as long,
  // is not needed.
  const auto power = [s, c](Extended x) { return Exp(c * Log1p(x / s)); };
  const Extended a = 4 / power(1);
  const Extended f = 16 / a;
  const Extended b = df > 1 ? XtoY((s + 1) / (s - 1), c) * std::sqrt(2 * s / (s - 1)) : 1;
  for (;;) {
    Extended u = source();
    while (u <= 0) u = source();
    const Extended v = source();
    const Extended x = b * (2 * v - 1) / u;
    const Extended q = x * x;
    if (q <= 5 - a * u) return x;
    if (u * (q + 3) <= f && u <= power(q)) return x;
  }
}

}  // namespace qorvex::inline QorvexRandom
