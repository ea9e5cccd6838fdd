#pragma once

/// @file
/// The standard normal distribution, which the normal and the log-normal one are computed from.

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex::distributions {

/// The checks of the parameters.
inline void RequireNormal(Extended mean, Extended std_dev) {
  RequirePositive(std_dev, rsStdDev);
  RequireFinite(mean);
}

/// (x - mean) / std_dev.
[[nodiscard]] special::ExtendedPair Standardised(special::ExtendedPair x, Extended mean,
                                                 Extended std_dev);

/// location + z scale. EOverflow beyond the format.
[[nodiscard]] Extended PointAt(special::ExtendedPair z, Extended location, Extended scale);

/// Both tails at any z but NaN.
[[nodiscard]] Tails StandardNormalTails(special::ExtendedPair z);

/// The z with the given tail, 0 < p < 1.
[[nodiscard]] Extended StandardNormalQuantile(Tail tail, Extended p);

/// The same to more than 64 bits.
[[nodiscard]] special::ExtendedPair RefinedNormalQuantile(Tail tail, Extended p);

}  // namespace qorvex::distributions
