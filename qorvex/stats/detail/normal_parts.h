#pragma once

// What the normal and the log-normal distribution share.

#include <cmath>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The square root of 2 pi, rounded to 64 bits as the processor's root is.
inline constexpr Extended kRootTwoPi = 2.50662827463100050241576528481104525L;

/// exp(-(x - mean)^2 / (2 std_dev^2)), with the divisor given.
inline Extended Bell(Extended x, Extended mean, Extended twice_variance) {
  const Extended difference = x - mean;
  return std::exp(-(difference * difference) / twice_variance);
}

inline Extended TwiceVariance(Extended std_dev) {
  return 2 * (std_dev * std_dev);
}

}  // namespace qorvex::inline QorvexStatistics::detail
