#pragma once

/// @file
/// Gamma variates by rejection.
///
/// Shapes above 1: George Marsaglia and Wai Wan Tsang (2000), "A simple method for generating gamma
/// variables", ACM Transactions on Mathematical Software 26, 363-372. A normal variate is cubed and
/// accepted with the help of one more uniform value; at most 5 % are rejected. Shapes below 1:
/// J. H. Ahrens and U. Dieter (1974), "Computer methods for sampling from gamma, beta, Poisson and
/// binomial distributions", Computing 12, 223-246, with variates below about 5E-324 given as 0: for
/// shapes below 0.001 that is every second one and more. Shape 1 is Random_Exponential.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A gamma variate of scale 1: its mean and its variance are the shape. An infinite shape gives
/// infinity. EMathError: rsInvalidShape unless shape > 0; rsShapeTooSmall for a shape below 5E-324.
/// For a shape of at least 1, sources that never give a normal or an exponential variate do not
/// give a gamma variate either; nor do ... for a shape below 1.
[[nodiscard]] QORVEX_EXPORT Extended Random_Gamma(Extended shape, UniformSource source);
[[nodiscard]] inline Extended Random_Gamma(Extended shape) {
  return Random_Gamma(shape, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
