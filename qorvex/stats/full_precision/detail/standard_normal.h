#pragma once

/// @file
/// The standard normal distribution, behind the normal and the log-normal one.

#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision::detail {

/// The checks of the parameters.
inline void RequireNormal(Extended mean, Extended std_dev) {
  RequirePositive(std_dev, rsStdDev);
  RequireFinite(mean);
}

/// (x - mean) / std_dev.
[[nodiscard]] ExtendedPair Standardised(ExtendedPair x, Extended mean, Extended std_dev);

/// Both tails at any z but NaN.
[[nodiscard]] Tails StandardNormalTails(ExtendedPair z);

/// The z with the given tail, 0 < p < 1.
[[nodiscard]] Extended StandardNormalQuantile(Tail tail, Extended p);

/// The same to more than 64 bits.
[[nodiscard]] ExtendedPair RefinedNormalQuantile(Tail tail, Extended p);

}  // namespace qorvex::full_precision::detail
