#pragma once

// What the normal and the log-normal density share.

#include <cmath>

#include "qorvex/base/element_types.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexStatistics::detail {

/// sqrt(2 pi), rounded to 64 bits.
inline constexpr Extended kRootTwoPi = 2.50662827463100050241576528481104525L;

/// exp(-(x - mean)^2 / twice_variance).
inline Extended Bell(Extended x, Extended mean, Extended twice_variance) {
  const Extended difference = x - mean;
  return Exp(-(difference * difference) / twice_variance);
}

inline Extended TwiceVariance(Extended std_dev) {
  return 2 * (std_dev * std_dev);
}

}  // namespace qorvex::inline QorvexStatistics::detail
