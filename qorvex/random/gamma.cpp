#include "qorvex/random/gamma.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/exponential.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

using detail::kVerySmall;

namespace {

// 1 - v + ln v. Large shapes multiply it, so it must keep its digits for v near 1.
Extended LogExcess(Extended v) {
  return v > 0.5L ? Log1p(v - 1) - (v - 1) : 1 - v + Log(v);
}

}  // namespace

GammaSampler::CubedNormal::CubedNormal(Extended shape)
    : d(shape - 0.3333333333333333L), c(1 / std::sqrt(9 * d)) {}

Extended GammaSampler::CubedNormal::operator()(UniformSource source) const {
  for (;;) {
    const Extended x = Random_Normal(source);
    const Extended root = 1 + c * x;
    const Extended v = root * root * root;
    if (!(v > 0)) continue;
    const Extended u = source();
    const Extended x_squared = x * x;
    if (u < 1 - 0.0331L * (x_squared * x_squared) ||
        CheckedLn(u) < 0.5L * x_squared + d * LogExcess(v))
      return d * v;
  }
}

GammaSampler::PowerAndTail::PowerAndTail(Extended shape_below_1)
    : shape(shape_below_1), a(1 - shape) {
  if (shape < kVerySmall) RaiseMathError(rsShapeTooSmall);
  reciprocal_shape = 1 / shape;
  power_share = a / (a + shape * Exp(-a));
  // kVerySmall / a is below 2^-1009.
  zero_bound = shape > 0.07L ? 0x1p-64L : std::ldexp(Extended{1}, -static_cast<int>(1009 * shape));
  d = a * Log(a);
}

Extended GammaSampler::PowerAndTail::operator()(UniformSource source) const {
  for (;;) {
    Extended r = source();
    while (r >= 1) r = source();
    Extended x;
    Extended w;
    if (r > power_share) {
      x = a - Log((1 - r) / (1 - power_share));
      w = a * Log(x) - d;
    } else if (r > zero_bound || r > power_share * XtoY(kVerySmall / a, shape)) {
      x = a * XtoY(r / power_share, reciprocal_shape);
      w = x;
    } else {
      return 0;
    }
    r = source();
    if (1 - r <= w && r > 0 && (r * (w + 1) >= 1 || -Log(r) <= w)) continue;
    return x;
  }
}

Extended GammaSampler::Exponential::operator()(UniformSource source) const {
  return Random_Exponential(source);
}

GammaSampler::Method GammaSampler::MethodFor(Extended shape) {
  if (!(shape > 0)) RaiseMathError(rsInvalidShape);
  if (shape > 1) return Method(std::in_place_type<CubedNormal>, shape);
  if (shape < 1) return Method(std::in_place_type<PowerAndTail>, shape);
  return Exponential();
}

GammaSampler::GammaSampler(Extended shape) : method_(MethodFor(shape)) {}

Extended GammaSampler::operator()(UniformSource source) const {
  return std::visit([source](const auto& method) { return method(source); }, method_);
}

Extended Random_Gamma(Extended shape, UniformSource source) {
  return GammaSampler(shape)(source);
}

}  // namespace qorvex::inline QorvexRandom
