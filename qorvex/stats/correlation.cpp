#include "qorvex/stats/correlation.h"

#include "qorvex/base/checked_math.h"
#include "qorvex/stats/detail/pair_sums.h"

namespace qorvex::inline QorvexPairStats {

Extended CoeffCorrelation(VectorView<Extended> x, VectorView<Extended> y) {
  if (x.size() != y.size() || x.size() < 2) return 0;
  const detail::PairSums sums = detail::SumPairs(x, y);
  const Extended divisor = sums.n - 1;
  const Extended std_dev_x = CheckedSqrt(sums.DeviationsXX() / divisor);
  const Extended std_dev_y = CheckedSqrt(sums.DeviationsYY() / divisor);
  return CheckedDivide(sums.DeviationsXY() / divisor, std_dev_x * std_dev_y);
}

Extended CoeffDetermination(VectorView<Extended> x, VectorView<Extended> y) {
  const Extended correlation = CoeffCorrelation(x, y);
  return correlation * correlation;
}

}  // namespace qorvex::inline QorvexPairStats
