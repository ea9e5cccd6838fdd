#include "qorvex/random/negative_binomial.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/detail/power_of_complement.h"

namespace qorvex::inline QorvexRandom {

namespace {

// Inversion from 0 upwards.
Extended InvertFromZero(Extended sk, Extended p, Extended u) {
  Extended probability = detail::PowerOfComplement(p, sk);
  Extended g = sk;
  Extended s = 0;
  while (probability <= u) {
    u -= probability;
    ++s;
    const Extended next = g * p * probability / s;
    ++g;
    // Rounding can leave the sum of all probabilities below the draw. Then the remaining terms are
    // too small to reach it.
    if (next < probability && u - next == u) break;
    probability = next;
  }
  return s;
}

}  // namespace

Extended Random_Neg_Binomial(Extended sk, Extended p, UniformSource source) {
  if (!(sk > 0 && p > 0 && p < 1)) RaiseMathError(rsInvalidValue);
  // A step takes about 65 ns.
  constexpr Extended max_steps = 2e7L;
  const bool is_direct = p > 0.7L;
  const Extended direct = is_direct ? std::trunc(sk) : 0;
  const Extended rest = sk - direct;
  if (direct > max_steps || rest * p / (1 - p) > max_steps) RaiseMathError(rsInvalidValue);

  const Extended log_p = Log(p);
  Extended x = 0;
  for (Extended i = 0; i < direct; ++i) {
    Extended r = source();
    while (!(r > 0)) r = source();
    x += std::trunc(Log(r) / log_p);
  }
  // The probability of 0 would underflow.
  if (Log(detail::kVerySmall) / Log1p(-p) < rest) RaiseMathError(rsInvalidValue);
  return std::trunc(x + InvertFromZero(rest, p, source()) + 0.5L);
}

}  // namespace qorvex::inline QorvexRandom
