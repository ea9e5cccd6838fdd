#pragma once

/// @file
/// Normal variates by the ratio of uniforms.
///
/// Joseph L. Leva (1992), "A fast normal random number generator" and "Algorithm 712: a normal
/// random number generator", ACM Transactions on Mathematical Software 18, 449-455: points of a
/// square are kept whose quotient is a normal variate, with quadratic bounds that decide all but
/// 1.2 % of them without a logarithm. An attempt takes two uniform values; 1.37 attempts are needed
/// on average.
///
/// No check is made of the mean and the standard deviation: a negative deviation mirrors the
/// variate, 0 gives the mean, and NaN and infinities go through the arithmetic. EMathError
/// rsDivideByZero when the accepted divisor is below 5E-324, which no source of 64 bits can bring
/// about. Stuck on 0, 1 - 2^-64 and NaN.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A standard normal variate. Its size is at most about sqrt(-4 ln u) for the smallest positive u
/// of the source, 13.3 for ClassicRandom.
[[nodiscard]] QORVEX_EXPORT Extended Random_Normal(UniformSource source);
[[nodiscard]] inline Extended Random_Normal() {
  return Random_Normal(ClassicRandom);
}
/// @}

/// @{
/// A standard normal variate times std_dev, plus mean.
[[nodiscard]] QORVEX_EXPORT Extended Random_Normal(Extended mean, Extended std_dev,
                                                   UniformSource source);
[[nodiscard]] inline Extended Random_Normal(Extended mean, Extended std_dev) {
  return Random_Normal(mean, std_dev, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
