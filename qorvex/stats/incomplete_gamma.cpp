#include "qorvex/stats/incomplete_gamma.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special_functions.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/normal.h"

namespace qorvex::inline QorvexStatistics {

namespace {

constexpr Extended kMaxShape = 1000;
constexpr Extended kMaxPoint = 1e8L;
constexpr Extended kMinExponent = -88;
// Numerators and denominators of the fraction are divided by this number when they reach it.
constexpr Extended kRescaleThreshold = 1.7e308L;

void RequireDomain(Extended a, Extended x) {
  if (x < 0) RaiseMathError(rsValueGEZero);
  if (a <= 0) RaiseMathError(rsValueGZero);
}

// The tolerance; 4 eps if it is not positive, because the loops would never reach it.
Extended PositiveTolerance() {
  return QorTolerance > 0 ? QorTolerance : 4 * std::numeric_limits<Extended>::epsilon();
}

Extended NormalApproximation(Extended a, Extended x) {
  constexpr Extended third = Extended(1) / 3;
  return NormalLess(3 * std::sqrt(a) * (XtoY(x / a, third) + 1 / (9 * a) - 1));
}

// ln(x^a exp(-x) / gamma * factor).
Extended LogarithmOf(Extended a, Extended x, Extended ln_gamma, Extended factor) {
  return a * Log(x) - x - ln_gamma + Log(factor);
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
  return exponent >= kMinExponent ? Exp(exponent) : 0;
}

Extended LowerByFraction(Extended shape, Extended x, Extended tolerance) {
  Extended a = 1 - shape;
  Extended b = a + x + 1;
  Extended term = 0;
  // Numerators and denominators of the last two convergents.
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
    if (std::fabs(next_numerator) >= kRescaleThreshold) {
      older_numerator /= kRescaleThreshold;
      older_denominator /= kRescaleThreshold;
      numerator /= kRescaleThreshold;
      denominator /= kRescaleThreshold;
    }
  }
  const Extended exponent = LogarithmOf(shape, x, LnGamma(shape), fraction);
  return exponent >= kMinExponent ? 1 - Exp(exponent) : 1;
}

}  // namespace

Extended IncompleteGamma(Extended a, Extended x) {
  RequireDomain(a, x);
  if (std::isnan(a) || std::isnan(x)) return a + x;
  if (FloatIsZero(x)) return 0;
  if (a > kMaxShape) return NormalApproximation(a, x);
  if (x > kMaxPoint) return 1;
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
