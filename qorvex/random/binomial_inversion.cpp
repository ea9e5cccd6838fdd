#include "qorvex/random/binomial_inversion.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Binomial1(std::int32_t n, Extended p, UniformSource source) {
  if (!(n >= 0 && p >= 0 && p <= 1)) RaiseMathError(rsInvalidValue);
  const Extended trials = static_cast<Extended>(n);
  const Extended u = source();
  if (p == 0) return 0;
  if (p == 1) return trials;

  // (n + 1) p can round to n + 1.
  const Extended mode = std::min(std::trunc((trials + 1) * p), trials);
  const Extended at_mode =
      Exp(LnGamma(trials + 1) - LnGamma(mode + 1) - LnGamma(trials - mode + 1) + mode * Log(p) +
          (trials - mode) * Log(1 - p));
  const Extended odds = p / (1 - p);

  double down = static_cast<double>(at_mode);
  double up = down;
  double remainder = static_cast<double>(u);
  const auto passes = [&remainder](double probability) {
    remainder = remainder - probability;
    return remainder >= 0;
  };
  if (!passes(down)) return mode;
  Extended low = mode;
  Extended high = mode;
  for (double before = 2; remainder != before;) {
    before = remainder;
    if (low > 0) {
      --low;
      down = static_cast<double>(down * (low + 1) / ((trials - low) * odds));
      if (!passes(down)) return low;
    }
    if (high < trials) {
      ++high;
      up = static_cast<double>(up * (trials - high + 1) * odds / high);
      if (!passes(up)) return high;
    }
  }
  // Both ends have been reached, or the remaining probabilities are too small to change the
  // remainder.
  return mode;
}

}  // namespace qorvex::inline QorvexRandom
