#pragma once

/// @file
/// Binomial variates by acceptance and rejection.
///
/// Voratas Kachitvichyanukul and Bruce W. Schmeiser (1988), "Binomial random variate generation",
/// Communications of the ACM 31, 216-222: a triangle, two parallelograms and two exponential tails
/// cover the probabilities. The last two of the four Stirling corrections in the acceptance test
/// are subtracted here; the article adds them by mistake.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of successes in n trials, each with probability p.
///
/// - Certain outcomes are exact: 0 for p = 0 or n = 0, and n for p = 1.
/// - EMathError rsInvalidValue unless n >= 0 and 0 <= p <= 1 (NaN included).
/// - Method: inversion from 0 upwards if n min(p, 1-p) < 30, otherwise rejection.
/// - Draws: one uniform value for the inversion. Rejection takes two an attempt, and 1.1 to 1.8
///   attempts on average.
/// - Cost: does not grow with n.
/// - Never returns if the source only ever yields NaN; for some parameters also if it only ever
///   yields 1/2 or 1 - 2^-64.
[[nodiscard]] QORVEX_EXPORT Extended Random_Binomial2(std::int64_t n, Extended p,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_Binomial2(std::int64_t n, Extended p) {
  return Random_Binomial2(n, p, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
