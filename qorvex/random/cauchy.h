#pragma once

/// @file
/// Cauchy variates by the ratio of uniforms.
///
/// A. J. Kinderman and J. F. Monahan (1977), "Computer generation of random variables using the
/// ratio of uniform deviates", ACM Transactions on Mathematical Software 3, 257-260.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A standard Cauchy variate: the quotient of the coordinates of a random point in the unit disc.
///
/// - Draws: two uniform values an attempt, and 1.27 attempts on average.
/// - Never returns if the source only ever yields 0, 1/2, 1 - 2^-64 or NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Cauchy(UniformSource source);
[[nodiscard]] inline Extended Random_Cauchy() {
  return Random_Cauchy(ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
