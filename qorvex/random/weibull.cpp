#include "qorvex/random/weibull.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/exponential.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Weibull(Extended a, UniformSource source) {
  if (std::fabs(a) <= detail::kVerySmall) RaiseMathError(rsInvalidValue);
  return CheckedXtoY(Random_Exponential(source), 1 / a);
}

}  // namespace qorvex::inline QorvexRandom
