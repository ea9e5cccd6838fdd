#pragma once

/// @file
/// Binomial variates by inversion from the mode.
///
/// C. D. Kemp (1986), "A modal method for generating binomial variables", Communications in
/// Statistics: Theory and Methods 15, 805-813.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of successes in n trials, each with probability p. The search starts at the mode and
/// goes down and up alternately.
///
/// - Certain outcomes are exact: 0 for p = 0 or n = 0, and n for p = 1.
/// - EMathError rsInvalidValue unless n >= 0 and 0 <= p <= 1 (NaN included).
/// - Draws: exactly one uniform value, which alone decides the variate.
/// - Probabilities are summed in 64-bit doubles. If the search reaches both ends, which rounding
///   causes with a probability of about 1e-16 n, the result is the mode.
/// - Cost: about sqrt(n p (1-p)) steps. Random_Binomial2 takes larger n, and its cost does not grow
///   with n.
/// - Returns for every source.
[[nodiscard]] QORVEX_EXPORT Extended Random_Binomial1(std::int32_t n, Extended p,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_Binomial1(std::int32_t n, Extended p) {
  return Random_Binomial1(n, p, ClassicRandom);
}
/// @}

/// Random_Binomial1 for many variates with the same parameters; see Fill.
class QORVEX_EXPORT BinomialInversionSampler {
 public:
  /// Raises the errors of Random_Binomial1.
  BinomialInversionSampler(std::int32_t n, Extended p);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  Extended trials_;
  Extended mode_;
  double at_mode_;  // the probability of the mode
  Extended odds_;
};

}  // namespace qorvex::inline QorvexRandom
