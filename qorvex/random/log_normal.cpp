#include "qorvex/random/log_normal.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

LogNormalSampler::LogNormalSampler(Extended mean, Extended std_dev) : mean_(mean) {
  if (!(mean > 0)) RaiseMathError(rsInvalidMean);
  if (!(std_dev > 0)) RaiseMathError(rsInvalidStdDev);
  const Extended square = std_dev * std_dev;
  if (std::isinf(square)) throw EOverflow();
  if (std_dev < 1) throw EInvalidOp();
  deviation_ = std::sqrt(Log(square));
  log_mean_ = Log(mean);
}

Extended LogNormalSampler::operator()(UniformSource source) const {
  const Extended logarithm = Random_Normal(log_mean_, deviation_, source);
  // exp(ln(mean)) may differ from the mean in the last bit.
  return deviation_ == 0 ? mean_ : CheckedExp(logarithm);
}

Extended Random_LogNormal(Extended mean, Extended std_dev, UniformSource source) {
  return LogNormalSampler(mean, std_dev)(source);
}

}  // namespace qorvex::inline QorvexRandom
