#pragma once

/// @file
/// Log-normal variates.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A normal variate's exponential. The logarithm of the variate is normal around ln(mean) with the
/// variance ln(std_dev^2), so `mean` is the median of the variate, not its mean, and std_dev is no
/// standard deviation either: for a logarithm of mean m and standard deviation s, pass exp(m) and
/// exp(s^2 / 2). A std_dev of 1 gives the mean itself, and so does an infinite mean. One normal
/// variate is drawn. Stuck on 0, 1 - 2^-64 and NaN.
///
/// EMathError: rsInvalidMean unless mean > 0; rsInvalidStdDev unless std_dev > 0. EOverflow when
/// std_dev^2 or the variate is beyond the extended range; EInvalidOp for std_dev < 1.
[[nodiscard]] QORVEX_EXPORT Extended Random_LogNormal(Extended mean, Extended std_dev,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_LogNormal(Extended mean, Extended std_dev) {
  return Random_LogNormal(mean, std_dev, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
