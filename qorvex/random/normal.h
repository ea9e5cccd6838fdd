#pragma once

/// @file
/// Normal variates by the ratio of uniforms.
///
/// Joseph L. Leva (1992), "A fast normal random number generator" and "Algorithm 712: a normal
/// random number generator", ACM Transactions on Mathematical Software 18, 449-455. A point of a
/// square is accepted if the quotient of its coordinates is a normal variate; quadratic bounds
/// decide all but 1.2 % of the points without a logarithm.
///
/// For all forms:
///
/// - Draws: two uniform values an attempt, and 1.37 attempts on average.
/// - EZeroDivide or EInvalidOp if the method needs the logarithm of a drawn 0 or negative value.
/// - EMathError rsDivideByZero if the accepted divisor is below 5E-324. A source with steps of
///   2^-64 cannot cause that.
/// - Never returns if the source only ever yields 0, 1 - 2^-64 or NaN.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A standard normal variate. Its magnitude is at most about sqrt(-4 ln u), where u is the smallest
/// positive value of the source: 13.3 for ClassicRandom.
[[nodiscard]] QORVEX_EXPORT Extended Random_Normal(UniformSource source);
[[nodiscard]] inline Extended Random_Normal() {
  return Random_Normal(ClassicRandom);
}
/// @}

/// @{
/// A normal variate: the standard normal variate times std_dev, plus mean.
///
/// The parameters are not checked. A negative std_dev mirrors the variate, 0 gives `mean`, and NaN
/// and infinities propagate as in IEEE 754 arithmetic.
[[nodiscard]] QORVEX_EXPORT Extended Random_Normal(Extended mean, Extended std_dev,
                                                   UniformSource source);
[[nodiscard]] inline Extended Random_Normal(Extended mean, Extended std_dev) {
  return Random_Normal(mean, std_dev, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
