#pragma once

// Binomial probabilities relative to the probability of the mode.

#include <cmath>

#include "qorvex/base/element_types.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexRandom::detail {

// The error of Stirling's formula: ln Gamma(z) - ((z - 1/2) ln z - z + ln(2 pi)/2).
inline Extended StirlingCorrection(Extended z) {
  const Extended z2 = z * z;
  return (13860 - (462 - (132 - (99 - 140 / z2) / z2) / z2) / z2) / z / 166320;
}

struct BinomialRatios {
  Extended n;
  Extended p;
  Extended q;
  Extended mode;

  // P(y) / P(mode), as a product of quotients of neighbouring probabilities.
  Extended Quotient(Extended y) const {
    const Extended odds = p / q;
    const Extended a = odds * (n + 1);
    Extended quotient = 1;
    for (Extended i = mode + 1; i <= y; ++i) quotient *= a / i - odds;
    for (Extended i = y + 1; i <= mode; ++i) quotient /= a / i - odds;
    return quotient;
  }

  // ln(P(y) / P(mode)) by Stirling's formula, for y not close to 0 or n. log1p keeps the digits of
  // logarithms near 0, which are multiplied by large counts.
  Extended LogQuotient(Extended y) const {
    const Extended above_mode = mode + 1;
    const Extended above_y = y + 1;
    const Extended failures_at_mode = n - mode + 1;
    const Extended failures_at_y = n - y + 1;
    return (mode + 0.5L) * Log1p((mode - y) / above_y) +
           (n - mode + 0.5L) * Log1p((y - mode) / failures_at_y) +
           (y - mode) * Log(failures_at_y * p / (above_y * q)) + StirlingCorrection(above_mode) +
           StirlingCorrection(failures_at_mode) - StirlingCorrection(above_y) -
           StirlingCorrection(failures_at_y);
  }
};

}  // namespace qorvex::inline QorvexRandom::detail
