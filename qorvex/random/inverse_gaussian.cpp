#include "qorvex/random/inverse_gaussian.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

namespace {

// NaN and infinities come from parameters near the ends of the range.
void RequireUsable(Extended x) {
  if (!(x >= detail::kVerySmall && std::isfinite(x))) RaiseMathError(rsInvalidValue);
}

}  // namespace

Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source) {
  // Attempts succeed once in the root of the larger parameter.
  constexpr Extended largest_parameter = 1e15L;
  if (!(b >= 0 && h > 0)) RaiseMathError(rsInvalidValue);
  if (b > 0.25L * h * std::sqrt(detail::kVeryLarge)) RaiseMathError(rsInvalidValue);
  if (std::max(h, b) > largest_parameter) RaiseMathError(rsInvalidValue);
  const Extended ym = (-(b + 1) + std::sqrt(h * h + (b + 1) * (b + 1))) / h;
  RequireUsable(ym);
  const Extended xm = ((b - 1) + std::sqrt(h * h + (b - 1) * (b - 1))) / h;
  RequireUsable(xm);
  const Extended c = -0.25L * h;
  const Extended r = XtoY(xm * ym, -0.5L * b) * std::sqrt(xm / ym) *
                     std::exp(0.25L * h * ((xm + 1 / xm) - ym - 1 / ym));
  RequireUsable(r);
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
