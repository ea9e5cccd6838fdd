// Sine and cosine of one angle for first_stage.h.

#include <utility>

#include "qorvex/base/elementary/detail/angle.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/sine_kernel.h"

namespace qorvex::elementary {

SineAndCosine SinCosWide(Extended x) {
  const Binary80 bits = BitsOf(x);
  if (bits.significand == 0) return {{}, kOne};
  const Normalised magnitude = Normalise(bits);
  // x^2/2 is below the last bit.
  if (magnitude.exponent < -64) return {Wide(x), kOne};
  const Angle angle = AngleOf(magnitude);
  const SineStep step = StepOf(angle.r);
  const SineSeries series = SeriesOf(step.h);
  Wide sine = step.row == 0 ? SmallSine(SmallAngleOf(magnitude))
                            : NormalisedTop(SinePart(step, series, 0), 0);
  Wide cosine = NormalisedTop(SinePart(step, series, 1), 0);
  sine.negative = angle.negative;
  if ((angle.quadrant & 1) != 0) {
    std::swap(sine, cosine);
    cosine.negative = !cosine.negative;
  }
  const bool turned = (angle.quadrant & 2) != 0;
  sine.negative ^= turned != bits.IsNegative();
  cosine.negative ^= turned;
  return {sine, cosine};
}

}  // namespace qorvex::elementary
