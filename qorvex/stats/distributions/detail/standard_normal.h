#pragma once

/// @file
/// The standard normal distribution, which the normal and the log-normal one are computed from, and
/// points relative to a location and a scale.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex::distributions {

using elementary::Wide;

/// The checks of the parameters.
inline void RequireNormal(Extended mean, Extended std_dev) {
  RequirePositive(std_dev, rsStdDev);
  RequireFinite(mean);
}

/// location + z scale. EOverflow beyond the format.
[[nodiscard]] inline Extended PointAt(const Wide& z, Extended location, Extended scale) {
  return CheckedFinite(Nearest(z * Wide(scale) + Wide(location)));
}

/// @{
/// Both tails at z; at any z but NaN.
[[nodiscard]] Tails StandardNormalTails(const Wide& z);
[[nodiscard]] Tails StandardNormalTails(const special::ExtendedPair& z);
/// @}

/// @{
/// The z with the given tail, 0 < p < 1; relative error of the wide one below 2^-82.
[[nodiscard]] Wide WideNormalQuantile(Tail tail, Extended p);
[[nodiscard]] inline Extended StandardNormalQuantile(Tail tail, Extended p) {
  return Nearest(WideNormalQuantile(tail, p));
}
/// @}

}  // namespace qorvex::distributions
