#pragma once

/// @file
/// Beta variates by rejection from the log-logistic distribution.
///
/// R. C. H. Cheng (1978), "Generating beta variates with nonintegral shape parameters",
/// Communications of the ACM 21, 317-322, in the form of John Dagpunar (1988), "Principles of
/// Random Variate Generation", Clarendon Press.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A beta variate with shapes a and b, in [0, 1]. The density is proportional to x^(a-1)
/// (1-x)^(b-1).
///
/// - Rounding can produce 0 and 1 themselves. The variate for a < b is 1 minus the variate for
///   exchanged shapes, so values near 0 have lost digits.
/// - EMathError rsInvalidValue unless a > 0 and b > 0 (NaN included), if a + b > 1E18, where
///   rounding would decide which candidates are accepted, or if the ratio of the shapes is beyond
///   the extended range.
/// - Draws: two uniform values an attempt. On average 1 to 1.5 attempts are needed if both shapes
///   exceed 1, otherwise up to 4.
/// - Never returns if the source only ever yields 0, 1 - 2^-64 or NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Beta(Extended a, Extended b, UniformSource source);
[[nodiscard]] inline Extended Random_Beta(Extended a, Extended b) {
  return Random_Beta(a, b, ClassicRandom);
}
/// @}

/// Random_Beta for many variates with the same shapes; see Fill.
class QORVEX_EXPORT BetaSampler {
 public:
  /// Raises the errors of Random_Beta.
  BetaSampler(Extended a, Extended b);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  // The variate with the larger shape first.
  Extended Ordered(UniformSource source) const;

  bool is_exchanged_;
  Extended hi_;
  Extended ratio_;
  Extended sum_;
  Extended shape_;
  Extended limit_;
};

}  // namespace qorvex::inline QorvexRandom
