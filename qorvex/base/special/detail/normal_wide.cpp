#include "qorvex/base/special/detail/normal_wide.h"

#include "qorvex/base/elementary/detail/erf_wide.h"
#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

using elementary::Wide;

namespace {

constexpr Wide kOneOverRoot2Pi{elementary::Join(0xcc42299ea1b28468, 0x7e59e2805d5c7180), -2};

// -z^2 / 2.
Wide Exponent(const Wide& z) {
  return ScaledBy(-(z * z), -1);
}

}  // namespace

Wide NormalDensityWide(const Wide& z) {
  constexpr std::int64_t beyond = 20;
  if (z.exponent >= beyond) return {};
  const Wide exponent = Exponent(z);
  return kOneOverRoot2Pi *
         (exponent.exponent < 14 ? elementary::ExpOf(exponent) : elementary::ExpWide(exponent));
}

Scaled NormalDensity(const Wide& z) {
  return MakeScaled(kOneOverRoot2Pi, Exponent(z));
}

// As erfc(t) / 2 for t = |z| / sqrt(2).
Scaled NormalFarTail(const Wide& z) {
  // From here on the power of e is kept apart, so that its logarithm can be had for any z.
  constexpr std::int64_t far_exponent = 10;
  const Wide t = z * kRootOfHalf;
  if (z.exponent < far_exponent) return MakeScaled(elementary::HalfErfcWide(t));
  return MakeScaled(elementary::ScaledHalfErfcWide(t), Exponent(z));
}

}  // namespace qorvex::special
