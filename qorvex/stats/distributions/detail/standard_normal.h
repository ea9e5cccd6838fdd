#pragma once

/// @file
/// The standard normal distribution, which the normal and the log-normal one are computed from.

#include "qorvex/stats/distributions/detail/location_scale.h"

namespace qorvex::distributions {

/// The checks of the parameters.
inline void RequireNormal(const Extended& mean, const Extended& std_dev) {
  RequirePositive(std_dev, rsStdDev);
  RequireFinite(mean);
}

/// @{
/// Both tails at z; at any z but NaN.
[[nodiscard]] Tails StandardNormalTails(const Wide& z);
[[nodiscard]] Tails StandardNormalTails(const special::ExtendedPair& z);
/// @}

/// @{
/// The z with the given tail, 0 < p < 1; relative error of the wide one below 2^-82.
[[nodiscard]] Wide WideNormalQuantile(Tail tail, const Extended& p);
[[nodiscard]] inline Extended StandardNormalQuantile(Tail tail, Extended p) {
  return Nearest(WideNormalQuantile(tail, p));
}
/// @}

}  // namespace qorvex::distributions
