#include "qorvex/random/inverse_gaussian.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

namespace {

// (k + sqrt(h^2 + k^2)) / h, where a density is greatest. For a negative k far above h it is a
// difference of near values. A wrong one makes the region too small, and to such an extent in b
// that it can be out of reach.
Extended Mode(Extended h, Extended k, Extended b) {
  const Extended root = std::sqrt(h * h + k * k);
  const Extended mode = (k + root) / h;
  const Extended exact = k < 0 ? h / (root - k) : mode;
  const Extended error = mode / exact - 1;
  constexpr Extended harmless = 1e-4L;
  if (!(mode >= detail::kVerySmall && (b + 1) * error * error <= harmless))
    RaiseMathError(rsInvalidValue);
  return mode;
}

}  // namespace

Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source) {
  // A variate takes about as many attempts as the root of the larger parameter is.
  constexpr Extended largest_parameter = 1e14L;
  if (!(b >= 0 && h > 0)) RaiseMathError(rsInvalidValue);
  if (b > 0.25L * h * std::sqrt(detail::kVeryLarge)) RaiseMathError(rsInvalidValue);
  if (std::max(h, b) > largest_parameter) RaiseMathError(rsInvalidValue);
  const Extended ym = Mode(h, -(b + 1), b);
  const Extended xm = Mode(h, b - 1, b);
  const Extended c = -0.25L * h;
  const Extended r = XtoY(xm * ym, -0.5L * b) * std::sqrt(xm / ym) *
                     std::exp(0.25L * h * ((xm + 1 / xm) - ym - 1 / ym));
  if (!(r >= detail::kVerySmall && std::isfinite(r))) RaiseMathError(rsInvalidValue);
  const Extended power = 0.5L * (b - 1);
  const Extended at_mode = -power * std::log(xm) - c * (xm + 1 / xm);
  for (;;) {
    const Extended u = source();
    if (!(u > 0)) continue;
    const Extended v = source();
    const Extended x = r * v / u;
    if (x > 0 && std::log(u) < at_mode + c * (x + 1 / x) + power * std::log(x)) return x;
  }
}

}  // namespace qorvex::inline QorvexRandom
