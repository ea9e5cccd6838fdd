#include "qorvex/base/special/factorial.h"

#include <array>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <cstddef>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/boost_math.h"

namespace qorvex::special {

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

constexpr int kStirlingFrom = 16;
// Far beyond kStirlingFrom, because the table is quicker. A product of nine numbers below
// Gamma(257) = 1e507 does not overflow.
constexpr int kTableEnd = 256;

// Gamma(i / 2 + 1).
constexpr auto kFactorialsOfHalves = [] {
  constexpr ExtendedPair root_of_pi{0xe2dfc48da77b553dp-63L, -0xf13eb7ca891b1f00p-130L};
  std::array<Extended, std::size_t{2} * kTableEnd> factorials{};
  ExtendedPair whole = 1;
  ExtendedPair half = root_of_pi / 2;
  for (std::size_t i = 0; i < factorials.size(); i += 2) {
    factorials[i] = whole.hi;
    factorials[i + 1] = half.hi;
    const auto n = static_cast<Extended>(i) / 2 + 1;
    whole = whole * n;
    half = half * (n + 0.5L);
  }
  return factorials;
}();

}  // namespace

Scaled FactorialOf(ExtendedPair a) {
  if (std::isnan(a.hi)) return {a.hi, ExtendedPair()};
  const Extended twice = 2 * a.hi;
  if (a.hi < kTableEnd && a.lo == 0 && twice == std::trunc(twice)) {
    return {kFactorialsOfHalves[static_cast<std::size_t>(twice)], ExtendedPair()};
  }
  if (a.hi >= kStirlingFrom) {
    return {std::sqrt(2 * QorPi * a.hi) * Exp(StirlingError(a.hi)), a * Ln(a) - a};
  }
  constexpr Extended small = 0.5L;
  if (a.hi < small) {
    // Quantiles of small shapes take this to the power 1 / a, so its distance from 1 counts.
    const Extended difference =
        Evaluate([&] { return boost::math::tgamma1pm1(a.hi, kBoostPolicy); });
    return {1, Ln(OrderedSum(1, difference))};
  }
  const Extended gamma = Evaluate([&] { return boost::math::tgamma(a.hi, kBoostPolicy); });
  // The derivative of the logarithm: enough digits for a low part of half a unit.
  const Extended digamma = Log(a.hi + 0.5L);
  return {a.hi * gamma * (1 + digamma * a.lo), ExtendedPair()};
}

}  // namespace qorvex::special
