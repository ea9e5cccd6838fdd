#pragma once

/// @file
/// Negative binomial variates by inversion.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of trials of probability p that succeed before the sk-th failure; sk need not be
/// whole. The mean is sk p / (1-p).
///
/// One uniform value is inverted from 0 upwards. For p above 0.7, one more is taken for each whole
/// unit of sk, as the number of successes before a failure. Stuck, if there are any, on 0 and NaN.
/// O(mean) for p up to 0.7, O(sk + 1/(1-p)) above.
///
/// EMathError rsInvalidValue: unless sk > 0, p > 0 and p < 1; for more than 2E7 steps to be
/// expected, about 1.5 s; when the probability of 0, from which the inversion starts, is below
/// 5E-324.
[[nodiscard]] QORVEX_EXPORT Extended Random_Neg_Binomial(Extended sk, Extended p,
                                                         UniformSource source);
[[nodiscard]] inline Extended Random_Neg_Binomial(Extended sk, Extended p) {
  return Random_Neg_Binomial(sk, p, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
