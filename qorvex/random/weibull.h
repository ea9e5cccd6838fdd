#pragma once

/// @file
/// Weibull variates by inversion.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A Weibull variate with shape a and scale 1: an exponential variate to the power 1/a.
///
/// - A negative shape gives the reciprocal of the variate for -a, which has the Frechet
///   distribution.
/// - An infinite shape gives 1, and NaN gives NaN.
/// - EMathError rsInvalidValue if |a| <= 5E-324.
/// - EOverflow if the power is beyond the extended range, which can happen if |a| < 0.004.
/// - Draws and sources: as for Random_Exponential.
[[nodiscard]] QORVEX_EXPORT Extended Random_Weibull(Extended a, UniformSource source);
[[nodiscard]] inline Extended Random_Weibull(Extended a) {
  return Random_Weibull(a, ClassicRandom);
}
/// @}

/// Random_Weibull for many variates of one shape; see Fill.
class QORVEX_EXPORT WeibullSampler {
 public:
  /// Raises rsInvalidValue as Random_Weibull does.
  explicit WeibullSampler(Extended a);

  /// A variate. Raises EOverflow as Random_Weibull does.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  Extended exponent_;
  bool is_usual_;  // XtoY does not multiply, and no variate up to 2^60 overflows
};

}  // namespace qorvex::inline QorvexRandom
