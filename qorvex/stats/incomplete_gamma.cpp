#include "qorvex/stats/incomplete_gamma.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special_functions.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/normal.h"

namespace qorvex::inline QorvexStatistics {

namespace {

constexpr Extended kLargestShape = 1000;
constexpr Extended kLargestPoint = 1e8L;
constexpr Extended kLeastExponent = -88;
// The fraction's numerators and denominators are scaled back when they reach this.
constexpr Extended kLarge = 1.7e308L;

void RequireDomain(Extended a, Extended x) {
  if (x < 0) RaiseMathError(rsValueGEZero);
  if (a <= 0) RaiseMathError(rsValueGZero);
}

// The loops would never reach a tolerance that is not positive.
Extended PositiveTolerance() {
  return QorTolerance > 0 ? QorTolerance : 4 * std::numeric_limits<Extended>::epsilon();
}

Extended NormalApproximation(Extended a, Extended x) {
  constexpr Extended third = Extended(1) / 3;
  return NormalLess(3 * std::sqrt(a) * (XtoY(x / a, third) + 1 / (9 * a) - 1));
}

// The logarithm of x^a exp(-x) / gamma, times a factor given by its sum.
Extended LogarithmOf(Extended a, Extended x, Extended ln_gamma, Extended factor) {
  return a * std::log(x) - x - ln_gamma + std::log(factor);
}

Extended LowerBySeries(Extended a, Extended x, Extended tolerance) {
  Extended term = 1;
  Extended sum = 1;
  Extended divisor = a;
  do {
    divisor += 1;
    term = term * x / divisor;
    sum += term;
  } while (term > tolerance);
  const Extended exponent = LogarithmOf(a, x, LnGamma(a + 1), sum);
  return exponent >= kLeastExponent ? std::exp(exponent) : 0;
}

Extended LowerByFraction(Extended shape, Extended x, Extended tolerance) {
  Extended a = 1 - shape;
  Extended b = a + x + 1;
  Extended term = 0;
  // The convergents' numerators and denominators, one step back and two.
  Extended older_numerator = 1;
  Extended older_denominator = x;
  Extended numerator = x + 1;
  Extended denominator = x * b;
  Extended fraction = numerator / denominator;
  while (true) {
    a += 1;
    b += 2;
    term += 1;
    const Extended an = a * term;
    const Extended next_numerator = b * numerator - an * older_numerator;
    const Extended next_denominator = b * denominator - an * older_denominator;
    if (std::fabs(next_denominator) > 0) {
      const Extended next = next_numerator / next_denominator;
      if (std::fabs(fraction - next) <= MinXY(tolerance, tolerance * next)) break;
      fraction = next;
    }
    older_numerator = numerator;
    older_denominator = denominator;
    numerator = next_numerator;
    denominator = next_denominator;
    if (std::fabs(next_numerator) >= kLarge) {
      older_numerator /= kLarge;
      older_denominator /= kLarge;
      numerator /= kLarge;
      denominator /= kLarge;
    }
  }
  const Extended exponent = LogarithmOf(shape, x, LnGamma(shape), fraction);
  return exponent >= kLeastExponent ? 1 - std::exp(exponent) : 1;
}

}  // namespace

Extended IncompleteGamma(Extended a, Extended x) {
  RequireDomain(a, x);
  if (std::isnan(a) || std::isnan(x)) return a + x;
  if (FloatIsZero(x)) return 0;
  if (a > kLargestShape) return NormalApproximation(a, x);
  if (x > kLargestPoint) return 1;
  const Extended tolerance = PositiveTolerance();
  return x <= 1 || x < a ? LowerBySeries(a, x, tolerance) : LowerByFraction(a, x, tolerance);
}

Extended IncompleteGamma2(Extended a, Extended x) {
  RequireDomain(a, x);
  if (std::isnan(a) || std::isnan(x)) return a + x;
  if (std::isinf(a)) throw EInvalidOp();
  const Extended gamma = Gamma(a);
  // The upper probability of 2 x under a chi-square distribution.
  const auto df = static_cast<std::uint32_t>(std::nearbyint(2 * a));
  detail::RequireDegreesOfFreedom(df);
  return gamma * (1 - IncompleteGamma(static_cast<Extended>(df) / 2, 2 * x / 2));
}

}  // namespace qorvex::inline QorvexStatistics
