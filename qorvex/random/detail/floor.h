#pragma once

#include <cmath>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexRandom::detail {

// The largest integer up to x. std::floor changes the rounding mode of the x87 unit and restores
// it, and each change waits for the whole computation before it.
inline Extended Floor(Extended x) {
  if (!(std::fabs(x) < 0x1p62L)) return std::floor(x);
  const std::int64_t nearest = std::llrint(x);
  return static_cast<Extended>(nearest - (static_cast<Extended>(nearest) > x ? 1 : 0));
}

}  // namespace qorvex::inline QorvexRandom::detail
