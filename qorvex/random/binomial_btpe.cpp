#include "qorvex/random/binomial_btpe.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/binomial_ratios.h"
#include "qorvex/random/detail/power_of_complement.h"

namespace qorvex::inline QorvexRandom {

namespace {

// Inversion from 0 upwards, for n p < 30.
Extended InvertFromZero(Extended n, Extended p, UniformSource source) {
  // A draw that is not reached by then exceeds the sum of all probabilities, which rounding has
  // left below 1: draw again.
  const Extended last = std::min<Extended>(n, 110);
  const Extended at_zero = detail::PowerOfComplement(p, n);
  const Extended odds = p / (1 - p);
  const Extended a = odds * (n + 1);
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

// The regions that cover the probabilities, for p <= 1/2 and n p >= 30.
class Regions {
 public:
  Regions(Extended n, Extended p) : n_(n), p_(p) {
    const Extended centre = n * p + p;
    mode_ = std::floor(centre);
    variance_ = n * p * q_;
    triangle_ = std::floor(2.195L * std::sqrt(variance_) - 4.6L * q_) + 0.5L;
    middle_ = mode_ + 0.5L;
    left_ = middle_ - triangle_;
    right_ = middle_ + triangle_;
    slope_ = 0.134L + 20.5L / (15.3L + mode_);
    const auto rate = [](Extended a) { return a * (1 + a / 2); };
    left_rate_ = rate((centre - left_) / (centre - left_ * p));
    right_rate_ = rate((right_ - centre) / (right_ * q_));
    parallelograms_ = triangle_ * (1 + 2 * slope_);
    left_tail_ = parallelograms_ + slope_ / left_rate_;
    right_tail_ = left_tail_ + slope_ / right_rate_;
  }

  Extended operator()(UniformSource source) const {
    for (;;) {
      const Extended u = source() * right_tail_;
      Extended v = source();
      if (u <= triangle_) return std::floor(middle_ - triangle_ * v + u);
      Extended y;
      if (u <= parallelograms_) {
        const Extended x = left_ + (u - triangle_) / slope_;
        v = v * slope_ + 1 - std::fabs(mode_ - x + 0.5L) / triangle_;
        if (v > 1 || v <= 0) continue;
        y = std::floor(x);
      } else if (u <= left_tail_) {
        y = std::floor(left_ + Log(v) / left_rate_);
        if (y < 0) continue;
        v *= (u - parallelograms_) * left_rate_;
      } else {
        y = std::floor(right_ - Log(v) / right_rate_);
        if (y > n_) continue;
        v *= (u - left_tail_) * right_rate_;
      }
      if (IsAccepted(v, y)) return y;
    }
  }

 private:
  // Whether v <= P(y) / P(mode). Quick bounds decide most cases.
  bool IsAccepted(Extended v, Extended y) const {
    const detail::BinomialRatios ratios{n_, p_, q_, mode_};
    const Extended distance = std::fabs(y - mode_);
    if (distance <= 20 || distance >= variance_ / 2 - 1) return v <= ratios.Quotient(y);
    const Extended relative = distance / variance_;
    const Extended bound =
        relative * ((distance * (distance / 3 + 0.625L) + 1.0L / 6) / variance_ + 0.5L);
    const Extended normal = -distance * distance / (2 * variance_);
    const Extended logarithm = Log(v);
    if (logarithm < normal - bound) return true;
    if (logarithm > normal + bound) return false;
    return logarithm <= ratios.LogQuotient(y);
  }

  Extended n_;
  Extended p_;
  Extended q_ = 1 - p_;
  Extended mode_;
  Extended variance_;
  // The triangle: its half width, middle and ends.
  Extended triangle_;
  Extended middle_;
  Extended left_;
  Extended right_;
  Extended slope_;
  Extended left_rate_;
  Extended right_rate_;
  // The cumulative area at the end of each region. The area of the triangle is its half width.
  Extended parallelograms_;
  Extended left_tail_;
  Extended right_tail_;
};

}  // namespace

Extended Random_Binomial2(std::int64_t n, Extended p, UniformSource source) {
  if (!(n >= 0 && p >= 0 && p <= 1)) RaiseMathError(rsInvalidValue);
  const Extended trials = static_cast<Extended>(n);
  const Extended r = std::min(p, 1 - p);
  const Extended variate =
      trials * r < 30 ? InvertFromZero(trials, r, source) : Regions(trials, r)(source);
  return p > 0.5L ? trials - variate : variate;
}

}  // namespace qorvex::inline QorvexRandom
