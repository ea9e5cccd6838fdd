#pragma once

/// @file
/// Exponential variates by inversion.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// An exponential variate with mean 1: -ln(u) for the first uniform value u above 5E-324.
///
/// - The largest possible value with ClassicRandom is 44.4.
/// - Draws: one uniform value, and one more for each that is at most 5E-324.
/// - Never returns if the source only ever yields 0 or NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Exponential(UniformSource source);
[[nodiscard]] inline Extended Random_Exponential() {
  return Random_Exponential(ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
