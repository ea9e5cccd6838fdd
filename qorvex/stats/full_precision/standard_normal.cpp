#include "qorvex/stats/full_precision/standard_normal.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::full_precision::detail {

namespace {

constexpr ExtendedPair kRootOfHalf{0xb504f333f9de6484p-64L, 0xb2fb1366ea957d3ep-129L};

// -z^2 / 2 in full.
ExtendedPair Exponent(ExtendedPair z) {
  const ExtendedPair square = z * z;
  return {-square.hi / 2, -square.lo / 2};
}

// The upper tail over the density for z >= 100: the asymptotic series.
Extended FarMillsRatio(Extended z) {
  const Extended y = 1 / (z * z);
  return (1 - y * (1 - y * (3 - y * (15 - y * (105 - y * (945 - y * 10395)))))) / z;
}

// The upper tail at z >= 0.
Scaled UpperTail(ExtendedPair z) {
  constexpr Extended far = 100;
  if (z.hi >= far) return StandardNormalDensity(z, 1 / FarMillsRatio(z.hi));
  // erfc(t) / 2 for t = z / sqrt(2), whose low part counts where the tail is steep. The steepness
  // -(ln erfc)' is t + sqrt(t^2 + 4/pi) within half a per cent.
  const ExtendedPair t = z * kRootOfHalf;
  const Extended steepness = t.hi + std::sqrt(t.hi * t.hi + 4 / QorPi);
  return {std::erfc(t.hi) / 2 * (1 - steepness * t.lo), ExtendedPair()};
}

}  // namespace

ExtendedPair Standardised(ExtendedPair x, Extended mean, Extended std_dev) {
  return (x - ExtendedPair(mean)) / ExtendedPair(std_dev);
}

Tails StandardNormalTails(ExtendedPair z) {
  if (z.hi < 0) return StandardNormalTails(-z).Mirrored();
  return {Tail::kUpper, UpperTail(z)};
}

Scaled StandardNormalDensity(ExtendedPair z, Extended scale) {
  return {1 / (std::sqrt(2 * QorPi) * scale), Exponent(z)};
}

ExtendedPair StandardNormalQuantile(Tail tail, Extended p) {
  if (p > 0.5L) return StandardNormalQuantile(Opposite(tail), 1 - p);
  const Extended z = std::sqrt(2.0L) * InverseErfc(2 * p);
  // One step of Newton's method adds digits.
  const Scaled upper = UpperTail(z);
  const Extended error = (upper.Value() - p) / StandardNormalDensity(z, 1).Value();
  const ExtendedPair refined = QorvexGlobals::detail::OrderedSum(z, error);
  return tail == Tail::kUpper ? refined : -refined;
}

}  // namespace qorvex::full_precision::detail
