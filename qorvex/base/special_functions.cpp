#include "qorvex/base/special_functions.h"

#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <limits>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/detail/boost_math.h"
#include "qorvex/base/detail/regularised_beta.h"
#include "qorvex/base/detail/shape_range.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using detail::Evaluate;
using detail::IsShapeOutOfRange;
using detail::kBoostPolicy;
using detail::kLargestShape;

// Raises unless value is in [0, 1] and the shapes are in range; NaN passes.
void RequireUnitAndShapes(Extended value, Extended a, Extended b) {
  if (value < 0 || value > 1 || IsShapeOutOfRange(a) || IsShapeOutOfRange(b)) throw EInvalidOp();
}

}  // namespace

Extended Gamma(Extended x) {
  if (std::isnan(x)) return x;
  if (x == 0) throw EZeroDivide();
  if (x < 0 && x == std::floor(x)) throw EInvalidOp();
  if (std::isinf(x)) return x;
  return Evaluate([=] { return boost::math::tgamma(x, kBoostPolicy); });
}

Extended LnGamma(Extended x) {
  if (std::isnan(x)) return x;
  if (std::isinf(x)) {
    if (x < 0) throw EInvalidOp();
    return x;
  }
  if (x <= 0 && x == std::floor(x)) throw EZeroDivide();
  return Evaluate([=] { return boost::math::lgamma(x, kBoostPolicy); });
}

Extended Beta(Extended a, Extended b) {
  if (std::isnan(a) || std::isnan(b)) return a + b;
  if (a <= 0 || b <= 0 || a > kLargestShape || b > kLargestShape) throw EInvalidOp();
  return CheckedFinite((detail::Scaled() / detail::RegularisedBeta(a, b).InverseBeta()).Value());
}

Extended IncompleteBeta(Extended x, Extended a, Extended b) {
  if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return x + a + b;
  RequireUnitAndShapes(x, a, b);
  if (x == 0 || x == 1) return x;
  const detail::Odds odds{x, detail::ExactSum(1, -x)};
  return detail::RegularisedBeta(a, b).At(odds).Probability(detail::Tail::kLower);
}

Extended InverseIncompleteBeta(Extended p, Extended a, Extended b) {
  if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return p + a + b;
  RequireUnitAndShapes(p, a, b);
  if (p == 0 || p == 1) return p;
  return detail::FromOdds(detail::RegularisedBeta(a, b).QuantileOdds(detail::Tail::kLower, p));
}

Extended InverseErfc(Extended y) {
  if (std::isnan(y)) return y;
  if (y < 0 || y > 2) throw EInvalidOp();
  if (y == 0) return std::numeric_limits<Extended>::infinity();
  if (y == 2) return -std::numeric_limits<Extended>::infinity();
  return Evaluate([=] { return boost::math::erfc_inv(y, kBoostPolicy); });
}

}  // namespace qorvex::inline QorvexGlobals
