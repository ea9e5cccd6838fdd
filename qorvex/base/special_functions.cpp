#include "qorvex/base/special_functions.h"

#include <algorithm>
#include <boost/math/policies/policy.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexGlobals {

namespace {

namespace policies = boost::math::policies;

// No promotion: long double is the widest hardware type. Overflow returns infinity, which is turned
// into our error below.
using Policy = policies::policy<policies::promote_float<false>, policies::promote_double<false>,
                                policies::overflow_error<policies::ignore_error>>;
constexpr Policy kPolicy;

Extended Finite(Extended value) {
  if (std::isinf(value)) throw EOverflow();
  return value;
}

bool IsShape(Extended a) {
  return a > 0 && std::isfinite(a);
}

// Halves the interval of representable values between 0 and 1 until two neighbours enclose the
// root.
Extended BisectedInverse(Extended p, Extended a, Extended b) {
  Extended low = 0;
  Extended high = 1;
  while (true) {
    // The geometric mean first narrows the exponent, the arithmetic one then the mantissa.
    const bool far_apart = low < high / 4;
    const Extended least = std::max(low, std::numeric_limits<Extended>::min());
    const Extended middle = far_apart ? std::sqrt(least) * std::sqrt(high) : low + (high - low) / 2;
    if (!(middle > low && middle < high)) return high;
    (boost::math::ibeta(a, b, middle, kPolicy) < p ? low : high) = middle;
  }
}

}  // namespace

Extended Gamma(Extended x) {
  if (std::isnan(x)) return x;
  if (x == 0) throw EZeroDivide();
  if (x < 0 && x == std::floor(x)) throw EInvalidOp();
  if (std::isinf(x)) return x;
  return Finite(boost::math::tgamma(x, kPolicy));
}

Extended LnGamma(Extended x) {
  if (std::isnan(x)) return x;
  if (std::isinf(x)) {
    if (x < 0) throw EInvalidOp();
    return x;
  }
  if (x <= 0 && x == std::floor(x)) throw EZeroDivide();
  return Finite(boost::math::lgamma(x, kPolicy));
}

Extended Beta(Extended a, Extended b) {
  if (std::isnan(a) || std::isnan(b)) return a + b;
  if (!IsShape(a) || !IsShape(b)) throw EInvalidOp();
  return Finite(boost::math::beta(a, b, kPolicy));
}

Extended IncompleteBeta(Extended x, Extended a, Extended b) {
  if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return x + a + b;
  if (!(x >= 0 && x <= 1) || !IsShape(a) || !IsShape(b)) throw EInvalidOp();
  return boost::math::ibeta(a, b, x, kPolicy);
}

Extended InverseIncompleteBeta(Extended p, Extended a, Extended b) {
  if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return p + a + b;
  if (!(p >= 0 && p <= 1) || !IsShape(a) || !IsShape(b)) throw EInvalidOp();
  if (p == 0 || p == 1) return p;
  try {
    return boost::math::ibeta_inv(a, b, p, kPolicy);
  } catch (const std::exception&) {
    return BisectedInverse(p, a, b);
  }
}

}  // namespace qorvex::inline QorvexGlobals
