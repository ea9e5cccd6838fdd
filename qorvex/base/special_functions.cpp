#include "qorvex/base/special_functions.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special/detail/gamma_wide.h"
#include "qorvex/base/special/regularised_beta.h"
#include "qorvex/base/special/shape_range.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using elementary::Wide;
using special::IsShapeOutOfRange;
using special::kLargestShape;

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
  // Far beyond both ends, where the kernel no longer holds.
  constexpr Extended beyond = 2000;
  if (x > beyond) throw EOverflow();
  if (x < -beyond) return 0;
  return CheckedFinite(elementary::Nearest(special::GammaWide(Wide(x))));
}

Extended LnGamma(Extended x) {
  if (std::isnan(x)) return x;
  if (std::isinf(x)) {
    if (x < 0) throw EInvalidOp();
    return x;
  }
  if (x <= 0 && x == std::floor(x)) throw EZeroDivide();
  return CheckedFinite(elementary::Nearest(special::LnGammaWide(Wide(x))));
}

Extended Beta(Extended a, Extended b) {
  if (std::isnan(a) || std::isnan(b)) return a + b;
  if (a <= 0 || b <= 0 || a > kLargestShape || b > kLargestShape) throw EInvalidOp();
  return CheckedFinite((special::Scaled() / special::RegularisedBeta(a, b).InverseBeta()).Value());
}

Extended IncompleteBeta(Extended x, Extended a, Extended b) {
  if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return x + a + b;
  RequireUnitAndShapes(x, a, b);
  if (x == 0 || x == 1) return x;
  const special::Odds odds{x, special::ExactSum(1, -x)};
  return special::RegularisedBeta(a, b).At(odds).Probability(special::Tail::kLower);
}

Extended InverseIncompleteBeta(Extended p, Extended a, Extended b) {
  if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return p + a + b;
  RequireUnitAndShapes(p, a, b);
  if (p == 0 || p == 1) return p;
  return special::FromOdds(special::RegularisedBeta(a, b).QuantileOdds(special::Tail::kLower, p));
}

}  // namespace qorvex::inline QorvexGlobals
