#pragma once

/// @file
/// Gamma variates by rejection.
///
/// Shapes above 1: George Marsaglia and Wai Wan Tsang (2000), "A simple method for generating gamma
/// variables", ACM Transactions on Mathematical Software 26, 363-372. A normal variate is cubed and
/// accepted with the help of one more uniform value; at most 5 % are rejected. Shapes below 1:
/// J. H. Ahrens and U. Dieter (1974), "Computer methods for sampling from gamma, beta, Poisson and
/// binomial distributions", Computing 12, 223-246; 1 to 2.6 uniform values on average. Variates
/// below about 5E-324 become 0 there, which is every second one for a shape of 0.001, and nearly
/// all for much smaller ones. Shape 1 is Random_Exponential.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A gamma variate of scale 1: its mean and its variance are the shape. An infinite shape gives
/// infinity. EMathError: rsInvalidShape unless shape > 0; rsShapeTooSmall for a shape below 5E-324.
/// Stuck on 0, 1 - 2^-64 and NaN for shapes above 1, on 1 - 2^-64 for those below, on 0 and NaN for
/// shape 1.
[[nodiscard]] QORVEX_EXPORT Extended Random_Gamma(Extended shape, UniformSource source);
[[nodiscard]] inline Extended Random_Gamma(Extended shape) {
  return Random_Gamma(shape, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
