#pragma once

// The sums over pairs that lines and correlations are computed from.

#include <cstddef>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexPairStats::detail {

/// Sums over n pairs, each in ascending order.
struct PairSums {
  Extended n = 0;
  Extended x = 0, y = 0;
  Extended xx = 0, xy = 0, yy = 0;

  /// Sums of products of deviations from the means. EInvalidOp for no pairs.
  [[nodiscard]] Extended DeviationsXX() const { return xx - CheckedDivide(x * x, n); }
  [[nodiscard]] Extended DeviationsXY() const { return xy - CheckedDivide(x * y, n); }
  [[nodiscard]] Extended DeviationsYY() const { return yy - CheckedDivide(y * y, n); }
};

/// All five sums in one pass; they are independent of one another.
inline PairSums SumPairs(VectorView<Extended> x, VectorView<Extended> y) {
  PairSums sums{.n = static_cast<Extended>(x.size())};
  for (std::size_t i = 0; i < x.size(); ++i) {
    sums.x += x[i];
    sums.y += y[i];
    sums.xx += x[i] * x[i];
    sums.xy += x[i] * y[i];
    sums.yy += y[i] * y[i];
  }
  return sums;
}

}  // namespace qorvex::inline QorvexPairStats::detail
