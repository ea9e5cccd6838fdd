#include "qorvex/random/binomial_btpe.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/binomial_ratios.h"
#include "qorvex/random/detail/floor.h"
#include "qorvex/random/detail/power_of_complement.h"

namespace qorvex::inline QorvexRandom {

// A draw that is not reached by the last count exceeds the sum of all probabilities, which rounding
// has left below 1: draw again.
BinomialSampler::Inversion::Inversion(Extended n, Extended p)
    : last(std::min<Extended>(n, 110)),
      at_zero(detail::PowerOfComplement(p, n)),
      odds(p / (1 - p)),
      a(odds * (n + 1)) {}

Extended BinomialSampler::Inversion::operator()(UniformSource source) const {
  for (;;) {
    Extended u = source();
    Extended probability = at_zero;
    for (Extended y = 0; y <= last;) {
      if (u < probability) return y;
      u -= probability;
      ++y;
      probability *= a / y - odds;
    }
  }
}

BinomialSampler::Regions::Regions(Extended trials, Extended probability)
    : n(trials), p(probability), q(1 - p) {
  const Extended centre = n * p + p;
  mode = detail::Floor(centre);
  variance = n * p * q;
  triangle = detail::Floor(2.195L * std::sqrt(variance) - 4.6L * q) + 0.5L;
  middle = mode + 0.5L;
  left = middle - triangle;
  right = middle + triangle;
  slope = 0.134L + 20.5L / (15.3L + mode);
  const auto rate = [](Extended a) { return a * (1 + a / 2); };
  left_rate = rate((centre - left) / (centre - left * p));
  right_rate = rate((right - centre) / (right * q));
  parallelograms = triangle * (1 + 2 * slope);
  left_tail = parallelograms + slope / left_rate;
  right_tail = left_tail + slope / right_rate;
}

Extended BinomialSampler::Regions::operator()(UniformSource source) const {
  for (;;) {
    const Extended u = source() * right_tail;
    Extended v = source();
    if (u <= triangle) return detail::Floor(middle - triangle * v + u);
    Extended y;
    if (u <= parallelograms) {
      const Extended x = left + (u - triangle) / slope;
      v = v * slope + 1 - std::fabs(mode - x + 0.5L) / triangle;
      if (v > 1 || v <= 0) continue;
      y = detail::Floor(x);
    } else if (u <= left_tail) {
      y = detail::Floor(left + Log(v) / left_rate);
      if (y < 0) continue;
      v *= (u - parallelograms) * left_rate;
    } else {
      y = detail::Floor(right - Log(v) / right_rate);
      if (y > n) continue;
      v *= (u - left_tail) * right_rate;
    }
    if (IsAccepted(v, y)) return y;
  }
}

// Whether v <= P(y) / P(mode). Quick bounds decide most cases.
bool BinomialSampler::Regions::IsAccepted(Extended v, Extended y) const {
  const detail::BinomialRatios ratios{n, p, q, mode};
  const Extended distance = std::fabs(y - mode);
  if (distance <= 20 || distance >= variance / 2 - 1) return v <= ratios.Quotient(y);
  const Extended relative = distance / variance;
  const Extended bound =
      relative * ((distance * (distance / 3 + 0.625L) + 1.0L / 6) / variance + 0.5L);
  const Extended normal = -distance * distance / (2 * variance);
  const Extended logarithm = Log(v);
  if (logarithm < normal - bound) return true;
  if (logarithm > normal + bound) return false;
  return logarithm <= ratios.LogQuotient(y);
}

BinomialSampler::Method BinomialSampler::MethodFor(Extended n, Extended p) {
  if (!(n >= 0 && p >= 0 && p <= 1)) RaiseMathError(rsInvalidValue);
  const Extended r = std::min(p, 1 - p);
  if (n * r < 30) return Method(std::in_place_type<Inversion>, n, r);
  return Method(std::in_place_type<Regions>, n, r);
}

BinomialSampler::BinomialSampler(std::int64_t n, Extended p)
    : trials_(static_cast<Extended>(n)),
      counts_failures_(p > 0.5L),
      method_(MethodFor(trials_, p)) {}

Extended BinomialSampler::operator()(UniformSource source) const {
  const Extended variate =
      std::visit([source](const auto& method) { return method(source); }, method_);
  return counts_failures_ ? trials_ - variate : variate;
}

Extended Random_Binomial2(std::int64_t n, Extended p, UniformSource source) {
  return BinomialSampler(n, p)(source);
}

}  // namespace qorvex::inline QorvexRandom
