#pragma once

// Sine and cosine of one angle.

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/sine_kernel.h"

namespace qorvex::elementary {

/// sin |r| and cos r for the angle of x.
[[gnu::always_inline]] inline SineAndCosine SineAndCosineOf(const Angle& angle, Normalised x) {
  const SineStep step = StepOf(angle.r);
  const SineSeries series = SeriesOf(step.h);
  return {step.row == 0 ? SmallSine(SmallAngleOf(x)) : NormalisedTop(SinePart(step, series, 0), 0),
          NormalisedTop(SinePart(step, series, 1), 0)};
}

}  // namespace qorvex::elementary
