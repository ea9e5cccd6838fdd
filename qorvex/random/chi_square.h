#pragma once

/// @file
/// Chi-square variates.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A chi-square variate with df degrees of freedom: 2 Random_Gamma(df / 2).
///
/// - EMathError rsInvalidShape if df < 1.
/// - Draws and sources: as for Random_Gamma.
[[nodiscard]] QORVEX_EXPORT Extended Random_ChiSq(std::int32_t df, UniformSource source);
[[nodiscard]] inline Extended Random_ChiSq(std::int32_t df) {
  return Random_ChiSq(df, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
