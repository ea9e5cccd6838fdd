#pragma once

/// @file
/// Chi-square variates.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/gamma.h"
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

/// Random_ChiSq for many variates with the same degrees of freedom; see Fill.
class QORVEX_EXPORT ChiSquareSampler {
 public:
  /// Raises the errors of Random_ChiSq.
  explicit ChiSquareSampler(std::int32_t df);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  GammaSampler half_;
};

}  // namespace qorvex::inline QorvexRandom
