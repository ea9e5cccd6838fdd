#pragma once

// Checks that the distributions share.

#include <cstdint>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexStatistics::detail {

inline void RequireProbability(Extended p) {
  if (!(p > 0 && p < 1)) RaiseMathError(rsValue01);
}

inline void RequireStdDev(Extended std_dev) {
  if (!FloatIsPositive(std_dev)) RaiseMathError(rsStdDev);
}

inline void RequireDegreesOfFreedom(std::uint32_t df) {
  if (df == 0) RaiseMathError(rsDF);
}

}  // namespace qorvex::inline QorvexStatistics::detail
