#include "qorvex/base/special/normal_tail.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::special {

namespace {

constexpr ExtendedPair kRootOfHalf{0xb504f333f9de6484p-64L, 0xb2fb1366ea957d3ep-129L};

// The upper tail over the density for z >= 100: the asymptotic series.
Extended FarMillsRatio(Extended z) {
  const Extended y = 1 / (z * z);
  return (1 - y * (1 - y * (3 - y * (15 - y * (105 - y * (945 - y * 10395)))))) / z;
}

}  // namespace

Scaled NormalDensity(ExtendedPair z, Extended scale) {
  const Extended factor = 1 / (std::sqrt(2 * QorPi) * scale);
  // The low parts of a square that nears the end of the range are NaN.
  constexpr Extended huge = 1e2400L;
  if (std::fabs(z.hi) > huge) return {factor, {-(z.hi * z.hi) / 2, 0}};
  const ExtendedPair square = z * z;
  return {factor, {-square.hi / 2, -square.lo / 2}};
}

Scaled NormalUpperTail(ExtendedPair z) {
  constexpr Extended far = 100;
  if (z.hi >= far) return NormalDensity(z, 1 / FarMillsRatio(z.hi));
  // erfc(t) / 2 for t = z / sqrt(2), whose low part counts where the tail is steep. The steepness
  // -(ln erfc)' is t + sqrt(t^2 + 4/pi) within half a per cent.
  const ExtendedPair t = z * kRootOfHalf;
  const Extended steepness = t.hi + std::sqrt(t.hi * t.hi + 4 / QorPi);
  return {Erfc(t.hi) / 2 * (1 - steepness * t.lo), ExtendedPair()};
}

}  // namespace qorvex::special
