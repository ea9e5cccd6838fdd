#include "qorvex/random/log_normal.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

Extended Random_LogNormal(Extended mean, Extended std_dev, UniformSource source) {
  if (!(mean > 0)) RaiseMathError(rsInvalidMean);
  if (!(std_dev > 0)) RaiseMathError(rsInvalidStdDev);
  const Extended deviation = CheckedSqrt(Log(CheckedFinite(std_dev * std_dev)));
  const Extended logarithm = Random_Normal(Log(mean), deviation, source);
  // exp(ln(mean)) may differ from the mean in the last bit.
  return deviation == 0 ? mean : CheckedExp(logarithm);
}

}  // namespace qorvex::inline QorvexRandom
