#include "qorvex/base/special_functions.h"

#include <algorithm>
#include <boost/math/policies/policy.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <limits>
#include <new>
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

// The value of a Boost.Math expression; what it throws becomes our error.
template <class Expression>
Extended Evaluate(Expression expression) {
  Extended value = 0;
  try {
    value = expression();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    throw EInvalidOp();
  }
  if (std::isinf(value)) throw EOverflow();
  return value;
}

// Beyond this the series and continued fractions take too many terms to end in sensible time.
constexpr Extended kLargestShape = 1e15L;

bool IsShape(Extended a) {
  return a > 0 && a <= kLargestShape;
}

Extended RegularisedBeta(Extended x, Extended a, Extended b) {
  return Evaluate([=] { return boost::math::ibeta(a, b, x, kPolicy); });
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
    (RegularisedBeta(middle, a, b) < p ? low : high) = middle;
  }
}

// Whether x solves I(x; a, b) = p, as far as the neighbours of x can tell.
bool IsRoot(Extended x, Extended p, Extended a, Extended b) {
  if (!(x >= 0 && x <= 1)) return false;
  constexpr Extended slack = 1e-12L;
  const Extended below = x * (1 - slack);
  const Extended above = std::min(x * (1 + slack), Extended(1));
  return RegularisedBeta(below, a, b) <= p && p <= RegularisedBeta(above, a, b);
}

}  // namespace

Extended Gamma(Extended x) {
  if (std::isnan(x)) return x;
  if (x == 0) throw EZeroDivide();
  if (x < 0 && x == std::floor(x)) throw EInvalidOp();
  if (std::isinf(x)) return x;
  return Evaluate([=] { return boost::math::tgamma(x, kPolicy); });
}

Extended LnGamma(Extended x) {
  if (std::isnan(x)) return x;
  if (std::isinf(x)) {
    if (x < 0) throw EInvalidOp();
    return x;
  }
  if (x <= 0 && x == std::floor(x)) throw EZeroDivide();
  return Evaluate([=] { return boost::math::lgamma(x, kPolicy); });
}

Extended Beta(Extended a, Extended b) {
  if (std::isnan(a) || std::isnan(b)) return a + b;
  if (!IsShape(a) || !IsShape(b)) throw EInvalidOp();
  return Evaluate([=] { return boost::math::beta(a, b, kPolicy); });
}

Extended IncompleteBeta(Extended x, Extended a, Extended b) {
  if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return x + a + b;
  if (!(x >= 0 && x <= 1) || !IsShape(a) || !IsShape(b)) throw EInvalidOp();
  return RegularisedBeta(x, a, b);
}

Extended InverseIncompleteBeta(Extended p, Extended a, Extended b) {
  if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return p + a + b;
  if (!(p >= 0 && p <= 1) || !IsShape(a) || !IsShape(b)) throw EInvalidOp();
  if (p == 0 || p == 1) return p;
  try {
    const Extended x = boost::math::ibeta_inv(a, b, p, kPolicy);
    if (IsRoot(x, p, a, b)) return x;
  } catch (const std::exception&) {
    // The root finder gave up; bisection does not.
  }
  return BisectedInverse(p, a, b);
}

}  // namespace qorvex::inline QorvexGlobals
