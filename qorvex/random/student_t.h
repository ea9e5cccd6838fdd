#pragma once

/// @file
/// Student t variates by the ratio of uniforms.
///
/// A. J. Kinderman and J. F. Monahan (1980), "New methods for generating Student's t and gamma
/// variables", Computing 25, 369-377, with a quick rejection test that avoids most powers.
///
/// That test is exact from three degrees of freedom on. For one and two it also rejects points that
/// belong to the distribution, and what remains is the region for three: Random_T(1) and
/// Random_T(2) have the distribution of Random_T(3). P(|T| > 10) is then 0.0021 instead of 0.063
/// and 0.0099. For one degree of freedom, use Random_Cauchy. For two, and wherever the tails
/// matter, use the quantile of a StudentTDistribution at a uniform value.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A t variate with df degrees of freedom.
///
/// - For df = 1 and df = 2 the distribution is that of df = 3; see above.
/// - EMathError rsInvalidValue if df < 1.
/// - Draws: two uniform values an attempt. On average 1.3 to 1.4 attempts are needed, and 1.7 for
///   one degree of freedom.
/// - Never returns if the source only ever yields 0, 1 - 2^-64 or NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_T(std::int32_t df, UniformSource source);
[[nodiscard]] inline Extended Random_T(std::int32_t df) {
  return Random_T(df, ClassicRandom);
}
/// @}

/// Random_T for many variates with the same degrees of freedom; see Fill.
class QORVEX_EXPORT StudentTSampler {
 public:
  /// Raises the errors of Random_T.
  explicit StudentTSampler(std::int32_t df);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  // (1 + x/s)^c, to which the rounding of 1 + x/s adds a relative error of at most df 2^-66.
  Extended Power(Extended x) const;

  Extended s_;  // the degrees of freedom
  Extended c_;
  Extended a_;
  Extended b_;
  Extended f_;
};

}  // namespace qorvex::inline QorvexRandom
