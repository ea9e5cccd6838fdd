#pragma once

/// @file
/// Chi-square variates.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A chi-square variate: twice a gamma variate of half the degrees of freedom, with its methods,
/// draws and sources. EMathError rsInvalidShape for fewer than one degree of freedom.
[[nodiscard]] QORVEX_EXPORT Extended Random_ChiSq(std::int32_t df, UniformSource source);
[[nodiscard]] inline Extended Random_ChiSq(std::int32_t df) {
  return Random_ChiSq(df, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
