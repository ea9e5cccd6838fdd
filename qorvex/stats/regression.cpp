#include "qorvex/stats/regression.h"

#include <cstddef>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/pair_sums.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexPairStats {

using QorvexVector::detail::RequireSameLength;

void GetRegressionLine(VectorView<Extended> x, VectorView<Extended> y, Extended& a, Extended& b) {
  RequireSameLength(x, y);
  const detail::PairSums sums = detail::SumPairs(x, y);
  const Extended slope = CheckedDivide(sums.DeviationsXY(), sums.DeviationsXX());
  a = (sums.y - slope * sums.x) / sums.n;
  b = slope;
}

void GetQuadraticCurve(VectorView<Extended> x, VectorView<Extended> y, Extended& a0, Extended& a1,
                       Extended& a2) {
  RequireSameLength(x, y);
  const auto n = static_cast<Extended>(x.size());
  // Two loops, because seven sums at once do not fit into the registers.
  Extended s1 = 0, s2 = 0, s3 = 0, s4 = 0;  // sums of the powers of x
  for (const Extended u : x) {
    const Extended square = u * u;
    s1 += u;
    s2 += square;
    s3 += square * u;
    s4 += square * square;
  }
  Extended t0 = 0, t1 = 0, t2 = 0;  // sums of y times the powers of x
  for (std::size_t i = 0; i < x.size(); ++i) {
    t0 += y[i];
    t1 += x[i] * y[i];
    t2 += x[i] * x[i] * y[i];
  }

  const Extended determinant =
      n * s2 * s4 + 2 * s1 * s2 * s3 - s2 * s2 * s2 - s1 * s1 * s4 - n * (s3 * s3);
  if (FloatIsZero(determinant)) RaiseMathError(rsDivideByZero);
  a0 = (s2 * s4 * t0 + s2 * s3 * t1 + s1 * s3 * t2 - s2 * s2 * t2 - s1 * s4 * t1 - s3 * s3 * t0) /
       determinant;
  a1 = (n * s4 * t1 + s1 * s2 * t2 + s2 * s3 * t0 - s2 * s2 * t1 - s1 * s4 * t0 - n * s3 * t2) /
       determinant;
  a2 = (n * s2 * t2 + s1 * s3 * t0 + s1 * s2 * t1 - s2 * s2 * t0 - s1 * s1 * t2 - n * s3 * t1) /
       determinant;
}

Extended GetSSE(VectorView<Extended> x, VectorView<Extended> y, Extended a, Extended b) {
  RequireSameLength(x, y);
  Extended sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const Extended residual = (b * x[i] + a) - y[i];
    sum += residual * residual;
  }
  return sum;
}

}  // namespace qorvex::inline QorvexPairStats
