#include "qorvex/base/special/detail/normal_wide.h"

#include "qorvex/base/elementary/detail/erf_wide.h"
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

Scaled NormalDensity(const Wide& z, const Wide& factor) {
  return MakeScaled(kOneOverRoot2Pi * factor, Exponent(z));
}

// As erfc(t) / 2.
Scaled NormalUpperTail(const Wide& z) {
  const Wide t = z * kRootOfHalf;
  if (elementary::IsErfNearZero(t)) return MakeScaled(ScaledBy(elementary::ErfcWide(t), -1));
  return MakeScaled(ScaledBy(elementary::ScaledErfcWide(t), -1), Exponent(z));
}

}  // namespace qorvex::special
