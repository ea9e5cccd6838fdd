#pragma once

/// @file
/// Exponential variates by inversion.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// An exponential variate of mean 1: -ln of a uniform value, the first one above 5E-324, so at most
/// 44.4 for ClassicRandom. One uniform value is taken but for those. Stuck on 0 and NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Exponential(UniformSource source);
[[nodiscard]] inline Extended Random_Exponential() {
  return Random_Exponential(ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
