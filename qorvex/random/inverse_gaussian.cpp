#include "qorvex/random/inverse_gaussian.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

namespace {

// The mode of a density, (k + sqrt(h^2 + k^2)) / h. For a negative k much larger than h in
// magnitude this is a difference of nearly equal numbers. An inaccurate mode makes the region too
// small; the larger b, the more, until no point of it is accepted.
Extended Mode(Extended h, Extended k, Extended b) {
  const Extended root = std::sqrt(h * h + k * k);
  const Extended mode = (k + root) / h;
  const Extended exact = k < 0 ? h / (root - k) : mode;
  const Extended error = mode / exact - 1;
  constexpr Extended max_error = 1e-4L;
  if (!(mode >= detail::kVerySmall && (b + 1) * error * error <= max_error))
    RaiseMathError(rsInvalidValue);
  return mode;
}

}  // namespace

InverseGaussianSampler::InverseGaussianSampler(Extended h, Extended b)
    : c_(-0.25L * h), power_(0.5L * (b - 1)) {
  // A variate takes about sqrt(max(h, b)) attempts.
  constexpr Extended max_parameter = 1e14L;
  if (!(b >= 0 && h > 0)) RaiseMathError(rsInvalidValue);
  if (b > 0.25L * h * std::sqrt(detail::kVeryLarge)) RaiseMathError(rsInvalidValue);
  if (std::max(h, b) > max_parameter) RaiseMathError(rsInvalidValue);
  const Extended ym = Mode(h, -(b + 1), b);
  const Extended xm = Mode(h, b - 1, b);
  r_ = XtoY(xm * ym, -0.5L * b) * std::sqrt(xm / ym) *
       Exp(0.25L * h * ((xm + 1 / xm) - ym - 1 / ym));
  if (!(r_ >= detail::kVerySmall && std::isfinite(r_))) RaiseMathError(rsInvalidValue);
  at_mode_ = -power_ * Log(xm) - c_ * (xm + 1 / xm);
}

Extended InverseGaussianSampler::operator()(UniformSource source) const {
  for (;;) {
    const Extended u = source();
    if (!(u > 0)) continue;
    const Extended v = source();
    const Extended x = r_ * v / u;
    if (x > 0 && Log(u) < at_mode_ + c_ * (x + 1 / x) + power_ * Log(x)) return x;
  }
}

Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source) {
  return InverseGaussianSampler(h, b)(source);
}

}  // namespace qorvex::inline QorvexRandom
