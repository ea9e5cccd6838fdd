#pragma once

/// @file
/// Weibull variates by inversion.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A Weibull variate of shape a and scale 1: an exponential variate to the power 1/a. A negative
/// shape is accepted and gives the reciprocal of the variate of -a, which has the Frechet
/// distribution; an infinite one gives 1, and NaN gives NaN. EMathError rsInvalidValue for a shape
/// of at most 5E-324 in size; EOverflow when the power is beyond the extended range, as it can be
/// for shapes below 0.004 in size. Draws and sources are those of Random_Exponential.
[[nodiscard]] QORVEX_EXPORT Extended Random_Weibull(Extended a, UniformSource source);
[[nodiscard]] inline Extended Random_Weibull(Extended a) {
  return Random_Weibull(a, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
