#pragma once

// The probability between two points, for all families.

#include "qorvex/base/comparisons.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The probability between two points in either order; 0 if SameFloat(x1, x2), without any check of
/// the parameters. less(x2) is called before less(x1).
template <class Less>
[[nodiscard]] Extended ProbabilityBetween(Extended x1, Extended x2, Less less) {
  if (SameFloat(x1, x2)) return 0;
  const Extended below_x2 = less(x2);
  const Extended below_x1 = less(x1);
  return x1 > x2 ? below_x1 - below_x2 : below_x2 - below_x1;
}

}  // namespace qorvex::inline QorvexStatistics::detail
