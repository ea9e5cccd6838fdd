#pragma once

// The methods of Random_Gamma. A sampler is prepared once and draws any number of variates.

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/exponential.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom::detail {

// For shapes above 1: Marsaglia and Tsang (2000).
class CubedNormal {
 public:
  explicit CubedNormal(Extended shape)
      : d_(shape - 0.3333333333333333L), c_(1 / std::sqrt(9 * d_)) {}

  Extended operator()(UniformSource source) const {
    for (;;) {
      const Extended x = Random_Normal(source);
      const Extended root = 1 + c_ * x;
      const Extended v = root * root * root;
      if (!(v > 0)) continue;
      const Extended u = source();
      const Extended x_squared = x * x;
      if (u < 1 - 0.0331L * (x_squared * x_squared) ||
          CheckedLn(u) < 0.5L * x_squared + d_ * LogExcess(v))
        return d_ * v;
    }
  }

 private:
  // 1 - v + ln v. Large shapes multiply it, so it must keep its digits for v near 1.
  static Extended LogExcess(Extended v) {
    return v > 0.5L ? Log1p(v - 1) - (v - 1) : 1 - v + Log(v);
  }

  Extended d_;
  Extended c_;
};

// For shapes below 1: Ahrens and Dieter (1974). A power near 0 and an exponential tail cover the
// density.
class PowerAndTail {
 public:
  explicit PowerAndTail(Extended shape) : shape_(shape), a_(1 - shape) {
    if (shape < kVerySmall) RaiseMathError(rsShapeTooSmall);
    reciprocal_shape_ = 1 / shape;
    power_share_ = a_ / (a_ + shape * Exp(-a_));
    // kVerySmall / a is below 2^-1009.
    zero_bound_ = std::ldexp(Extended{1}, -static_cast<int>(1009 * shape));
    d_ = a_ * Log(a_);
  }

  Extended operator()(UniformSource source) const {
    for (;;) {
      Extended r = source();
      while (r >= 1) r = source();
      Extended x;
      Extended w;
      if (r > power_share_) {
        x = a_ - Log((1 - r) / (1 - power_share_));
        w = a_ * Log(x) - d_;
      } else if (r > zero_bound_ || r > power_share_ * XtoY(kVerySmall / a_, shape_)) {
        x = a_ * XtoY(r / power_share_, reciprocal_shape_);
        w = x;
      } else {
        return 0;
      }
      r = source();
      if (1 - r <= w && r > 0 && (r * (w + 1) >= 1 || -Log(r) <= w)) continue;
      return x;
    }
  }

 private:
  Extended shape_;
  Extended a_;
  Extended reciprocal_shape_;
  Extended power_share_;
  // Only draws up to this bound can give a variate that becomes 0, so the power that decides it is
  // rarely computed.
  Extended zero_bound_;
  Extended d_;
};

// Calls use(sampler) with the sampler for the shape.
template <class Use>
auto WithGammaSampler(Extended shape, Use use) {
  if (!(shape > 0)) RaiseMathError(rsInvalidShape);
  if (shape > 1) return use(CubedNormal(shape));
  if (shape < 1) return use(PowerAndTail(shape));
  return use([](UniformSource source) { return Random_Exponential(source); });
}

}  // namespace qorvex::inline QorvexRandom::detail
