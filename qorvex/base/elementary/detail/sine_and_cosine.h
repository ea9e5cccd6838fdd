#pragma once

// Sine and cosine of one angle, and which angles need computing.

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/sine_kernel.h"

namespace qorvex::elementary {

/// Below 2^-32, sin x and tan x round to x and cos x to 1: x^2/6, x^2/3 and x^2/2 are less than
/// half the distance to the next number.
inline constexpr int kLeastExponent = -32;

/// Whether x is finite, normal and not that small.
inline bool NeedsKernel(Binary80 x) {
  constexpr int first = kExponentBias + kLeastExponent;
  return static_cast<unsigned>(x.Exponent() - first) <
             static_cast<unsigned>(kExponentOfInfinity - first) &&
         x.significand >= kTopBit;
}

/// sin |r| and cos r for the angle of x.
[[gnu::always_inline]] inline SineAndCosine SineAndCosineOf(const Angle& angle, Normalised x) {
  const SineStep step = StepOf(angle.r);
  const SineSeries series = SeriesOf(step.h);
  return {step.row == 0 ? SmallSine(SmallAngleOf(x)) : NormalisedTop(SinePart(step, series, 0), 0),
          NormalisedTop(SinePart(step, series, 1), 0)};
}

}  // namespace qorvex::elementary
