#pragma once

/// @file
/// Log-normal variates.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A log-normal variate: exp(z) for a normal variate z with mean ln(mean) and variance
/// ln(std_dev^2).
///
/// - `mean` is therefore the median of the variate, and `std_dev` is not its standard deviation.
///   For a logarithm with mean m and standard deviation s, pass exp(m) and exp(s^2 / 2).
/// - std_dev = 1 gives `mean` exactly; so does an infinite mean.
/// - EMathError: rsInvalidMean unless mean > 0; then rsInvalidStdDev unless std_dev > 0 (NaN
///   included in both).
/// - Then EOverflow if std_dev^2 is beyond the extended range, EInvalidOp if std_dev < 1, and
///   EOverflow if the variate is beyond the extended range.
/// - Draws: those of one normal variate.
/// - Never returns if the source only ever yields 0, 1 - 2^-64 or NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_LogNormal(Extended mean, Extended std_dev,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_LogNormal(Extended mean, Extended std_dev) {
  return Random_LogNormal(mean, std_dev, ClassicRandom);
}
/// @}

/// Random_LogNormal for many variates with the same parameters; see Fill.
class QORVEX_EXPORT LogNormalSampler {
 public:
  /// Raises the errors of Random_LogNormal that depend on the parameters alone.
  LogNormalSampler(Extended mean, Extended std_dev);

  /// A variate. EOverflow if it is beyond the extended range.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  Extended mean_;
  Extended log_mean_;
  Extended deviation_;
};

}  // namespace qorvex::inline QorvexRandom
