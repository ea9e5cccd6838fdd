#pragma once

// The probability between two points, the same for every family.

#include "qorvex/base/comparisons.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The probability that lies between two points in either order; 0 for points that SameFloat finds
/// the same, whatever the parameters are. less(x2) is asked before less(x1).
template <class Less>
[[nodiscard]] Extended ProbabilityBetween(Extended x1, Extended x2, Less less) {
  if (SameFloat(x1, x2)) return 0;
  const Extended below_x2 = less(x2);
  const Extended below_x1 = less(x1);
  return x1 > x2 ? below_x1 - below_x2 : below_x2 - below_x1;
}

}  // namespace qorvex::inline QorvexStatistics::detail
