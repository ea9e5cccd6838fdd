#include "qorvex/base/detail/scaled.h"

#include <boost/math/special_functions/gamma.hpp>
#include <cmath>

#include "qorvex/base/detail/boost_math.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::inline QorvexGlobals::detail {

namespace {

// ln Gamma(a + 1) - (a + 1/2) ln a + a - ln(2 pi) / 2 for a >= 16: Stirling's series.
Extended StirlingError(Extended a) {
  const Extended z = 1 / (a * a);
  return (1.0L / 12 -
          z * (1.0L / 360 -
               z * (1.0L / 1260 -
                    z * (1.0L / 1680 -
                         z * (1.0L / 1188 -
                              z * (691.0L / 360360 -
                                   z * (1.0L / 156 -
                                        z * (3617.0L / 122400 - z * 43867.0L / 244188)))))))) /
         a;
}

}  // namespace

Extended Scaled::Value() const {
  constexpr Extended beyond = 30000;
  if (std::fabs(exponent.hi) > beyond) return factor * std::exp(exponent.hi);
  // Moved away from the smallest numbers, where the exponential alone would lose digits.
  constexpr Extended low = -11000;
  constexpr Extended shift = 128;
  const Extended power = exponent.hi < low ? std::exp(exponent.hi + shift) : std::exp(exponent.hi);
  const Extended value = factor * power * (1 + exponent.lo);
  return exponent.hi < low ? value * std::exp(-shift) : value;
}

Extended Scaled::Log() const {
  return exponent.hi + (std::log(factor) + exponent.lo);
}

Scaled Power(ExtendedPair x, ExtendedPair y) {
  if (y.hi == 0) return {};
  return {1, y * Ln(x)};
}

Scaled FactorialOf(ExtendedPair a) {
  constexpr Extended stirling_from = 16;
  if (a.hi >= stirling_from) {
    return {std::sqrt(2 * QorPi * a.hi) * std::exp(StirlingError(a.hi)), a * Ln(a) - a};
  }
  constexpr Extended near_one_below = 0.5L;
  if (a.hi < near_one_below) {
    // Quantiles of small shapes take this to the power 1 / a, so what it differs from 1 counts.
    const Extended difference =
        Evaluate([&] { return boost::math::tgamma1pm1(a.hi, kBoostPolicy); });
    return {1, Ln(OrderedSum(1, difference))};
  }
  // The derivative of the logarithm, well enough for the half unit that the low part can be.
  const Extended digamma = std::log(a.hi + 0.5L);
  return {a.hi * Gamma(a.hi) * (1 + digamma * a.lo), ExtendedPair()};
}

}  // namespace qorvex::inline QorvexGlobals::detail
