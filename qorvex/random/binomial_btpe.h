#pragma once

/// @file
/// Binomial variates by acceptance and rejection.
///
/// Voratas Kachitvichyanukul and Bruce W. Schmeiser (1988), "Binomial random variate generation",
/// Communications of the ACM 31, 216-222: a triangle, two parallelograms and two exponential tails
/// cover the probabilities. Of the four Stirling corrections in the acceptance test the last
/// two are subtracted, where the article adds them by mistake.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of successes in n trials of probability p, for any n that an int64 holds. Where n
/// times the smaller of p and 1-p is below 30, one uniform value is inverted from 0 upwards;
/// otherwise an attempt takes two, and 1.1 to 1.8 attempts are needed on average. The cost does not
/// grow with n. EMathError rsInvalidValue unless n >= 0 and 0 <= p <= 1. Stuck on NaN, for some
/// parameters also on 1/2 and 1 - 2^-64.
[[nodiscard]] QORVEX_EXPORT Extended Random_Binomial2(std::int64_t n, Extended p,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_Binomial2(std::int64_t n, Extended p) {
  return Random_Binomial2(n, p, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
