#include "qorvex/random/normal.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Normal(UniformSource source) {
  for (;;) {
    const Extended u = source();
    const Extended v = (source() - 0.5L) * 1.7156L;
    const Extended x = u - 0.449871L;
    const Extended y = std::fabs(v) + 0.386595L;
    const Extended q = x * x + y * (0.19600L * y - 0.25472L * x);
    if (!(q < 0.27597L)) {
      if (q > 0.27846L) continue;
      if (!(u * u * (CheckedLn(u) * -4) > v * v)) continue;
    }
    if (u < detail::kVerySmall) RaiseMathError(rsDivideByZero);
    return v / u;
  }
}

Extended Random_Normal(Extended mean, Extended std_dev, UniformSource source) {
  return Random_Normal(source) * std_dev + mean;
}

}  // namespace qorvex::inline QorvexRandom
