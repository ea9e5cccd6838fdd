#include "qorvex/random/weibull.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/exponential.h"

namespace qorvex::inline QorvexRandom {

WeibullSampler::WeibullSampler(Extended a) : exponent_(1 / a) {
  if (std::fabs(a) <= detail::kVerySmall) RaiseMathError(rsInvalidValue);
}

Extended WeibullSampler::operator()(UniformSource source) const {
  return CheckedXtoY(Random_Exponential(source), exponent_);
}

Extended Random_Weibull(Extended a, UniformSource source) {
  return WeibullSampler(a)(source);
}

}  // namespace qorvex::inline QorvexRandom
