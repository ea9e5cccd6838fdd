#pragma once

/// @file
/// Negative binomial variates by inversion.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of successes, each with probability p, before failure number sk. The count sk need
/// not be whole. The mean is sk p / (1-p).
///
/// - EMathError rsInvalidValue unless sk > 0 and 0 < p < 1 (NaN included); if more than 2E7 steps,
///   or about 1.5 s, are expected; or if the probability of 0, where the inversion starts, is below
///   5E-324.
/// - Draws: one uniform value, inverted from 0 upwards. If p > 0.7, one more for each whole unit of
///   sk: the number of successes before one failure.
/// - Cost: O(mean) if p <= 0.7, otherwise O(sk + 1/(1-p)).
/// - Never returns if p > 0.7, sk >= 1 and the source only ever yields 0 or NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Neg_Binomial(Extended sk, Extended p,
                                                         UniformSource source);
[[nodiscard]] inline Extended Random_Neg_Binomial(Extended sk, Extended p) {
  return Random_Neg_Binomial(sk, p, ClassicRandom);
}
/// @}

/// Random_Neg_Binomial for many variates with the same parameters; see Fill.
class QORVEX_EXPORT NegativeBinomialSampler {
 public:
  /// Raises the errors of Random_Neg_Binomial.
  NegativeBinomialSampler(Extended sk, Extended p);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  // Inversion from 0 upwards, for the failures that are not drawn directly.
  Extended Invert(Extended u) const;

  Extended p_;
  Extended direct_;  // failures that are drawn one by one
  Extended rest_;
  Extended log_p_;
  Extended at_zero_;
};

}  // namespace qorvex::inline QorvexRandom
