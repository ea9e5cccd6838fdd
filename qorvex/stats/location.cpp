#include "qorvex/stats/location.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/sign_tests.h"

namespace qorvex::inline QorvexStatistics {

template <WideNumericElement T>
Extended QorMean(VectorView<T> vector) {
  return static_cast<Extended>(SumVector(vector)) / static_cast<Extended>(vector.size());
}

Extended GeometricMean(VectorView<Extended> vector) {
  if (!VectorPositive(vector)) RaiseMathError(rsVectorNotPos);
  Extended sum = 0;
  for (const Extended x : vector) sum += Log(x);
  return Exp(sum / static_cast<Extended>(vector.size()));
}

Extended HarmonicMean(VectorView<Extended> vector) {
  if (!VectorPositive(vector)) RaiseMathError(rsVectorNotPos);
  Extended sum = 0;
  for (const Extended x : vector) sum += 1 / x;
  return static_cast<Extended>(vector.size()) / sum;
}

Extended RootMeanSquare(VectorView<Extended> vector) {
  return std::sqrt(SumSqVector(vector));
}

#define QORVEX_INSTANTIATE(T) template Extended QorMean(VectorView<T>);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexStatistics
