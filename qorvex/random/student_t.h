#pragma once

/// @file
/// Student t variates by the ratio of uniforms.
///
/// A. J. Kinderman and J. F. Monahan (1980), "New methods for generating Student's t and gamma
/// variables", Computing 25, 369-377, with a quick rejection that spares most powers. That test is
/// exact from three degrees of freedom on. For one and two it also rejects points that belong to
/// the distribution, and what it leaves is the region of three: Random_T(1) and Random_T(2) have
/// the distribution of Random_T(3). The probability of a size above 10 is then 0.0021 instead of
/// 0.063 and 0.0099. Random_Cauchy is the variate of one degree of freedom; for two, and wherever
/// the tails matter, use a StudentTDistribution quantile of a uniform value.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A t variate. An attempt takes two uniform values; 1.3 to 1.4 attempts are needed on average, 1.7
/// for one degree of freedom. EMathError rsInvalidValue for fewer than one degree of freedom. Stuck
/// on 0, 1 - 2^-64 and NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_T(std::int32_t df, UniformSource source);
[[nodiscard]] inline Extended Random_T(std::int32_t df) {
  return Random_T(df, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
