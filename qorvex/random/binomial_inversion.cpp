#include "qorvex/random/binomial_inversion.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special_functions.h"
#include "qorvex/random/detail/floor.h"

namespace qorvex::inline QorvexRandom {

BinomialInversionSampler::BinomialInversionSampler(std::int32_t n, Extended p)
    : trials_(static_cast<Extended>(n)), odds_(p / (1 - p)) {
  if (!(n >= 0 && p >= 0 && p <= 1)) RaiseMathError(rsInvalidValue);
  // (n + 1) p can round to n + 1.
  mode_ = std::min(detail::Floor((trials_ + 1) * p), trials_);
  // What is certain exceeds every draw.
  const bool is_certain = p == 0 || p == 1;
  at_mode_ = is_certain ? std::numeric_limits<double>::infinity()
                        : static_cast<double>(Exp(LnGamma(trials_ + 1) - LnGamma(mode_ + 1) -
                                                  LnGamma(trials_ - mode_ + 1) + mode_ * Log(p) +
                                                  (trials_ - mode_) * Log(1 - p)));
}

Extended BinomialInversionSampler::operator()(UniformSource source) const {
  double down = at_mode_;
  double up = down;
  double remainder = static_cast<double>(source());
  const auto passes = [&remainder](double probability) {
    remainder = remainder - probability;
    return remainder >= 0;
  };
  if (!passes(down)) return mode_;
  Extended low = mode_;
  Extended high = mode_;
  for (double before = 2; remainder != before;) {
    before = remainder;
    if (low > 0) {
      --low;
      down = static_cast<double>(down * (low + 1) / ((trials_ - low) * odds_));
      if (!passes(down)) return low;
    }
    if (high < trials_) {
      ++high;
      up = static_cast<double>(up * (trials_ - high + 1) * odds_ / high);
      if (!passes(up)) return high;
    }
  }
  // Both ends have been reached, or the remaining probabilities are too small to change the
  // remainder.
  return mode_;
}

Extended Random_Binomial1(std::int32_t n, Extended p, UniformSource source) {
  return BinomialInversionSampler(n, p)(source);
}

}  // namespace qorvex::inline QorvexRandom
