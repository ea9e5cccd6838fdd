#include "qorvex/stats/distributions/von_mises.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/gauss_legendre.h"

namespace qorvex {

using namespace distributions;
using special::ExtendedPair;
using special::Scaled;

namespace {

constexpr ExtendedPair kPi{QorPi, -5.01655761266833202355732708e-20L};

// The largest value below pi, of which QorPi is the next.
constexpr Extended kLastAngle = QorPi - 0x1p-62L;

// 1 - cos x for 0 <= x <= pi: its series at x / 16, doubled four times by
// 1 - cos 2x = 2 (1 - cos x) (1 + cos x).
ExtendedPair Versine(Extended x) {
  const ExtendedPair square = special::ExactProduct(x / 16, x / 16);
  ExtendedPair series = 1;
  constexpr Extended last = 20;
  for (Extended n = last; n > 2; n -= 2) series = 1 - square * series / (n * (n - 1));
  ExtendedPair versine = square * series * 0.5L;
  for (int i = 0; i < 4; ++i) versine = 2 * (versine * (2 - versine));
  return versine;
}

// How far from x, at most pi, k cos falls by more than is worth integrating.
Extended Reach(Extended k, Extended x) {
  const Extended lowest = Cos(x) - kNegligibleFall / k;
  return lowest > -1 ? ArcCos(lowest) - x : (kPi - x).hi;
}

}  // namespace

VonMisesDistribution::VonMisesDistribution(Extended concentration) : concentration_(concentration) {
  if (concentration < 0) RaiseMathError(rsInvalidValue);
  if (concentration > special::kLargestShape) throw EInvalidOp();
  if (!AnyNaN(concentration)) half_mass_ = UpperTailAt(0).relative;
}

VonMisesDistribution::UpperTail VonMisesDistribution::UpperTailAt(Extended x) const {
  const Extended k = concentration_;
  const Extended rest = (kPi - x).hi;
  const Extended relative = Integral(Reach(k, x), [=](Extended s) {
    // cos x - cos(x + s) is twice the product of two sines, of which this is one; also from pi.
    const Extended middle = x < 1 ? x + s / 2 : rest - s / 2;
    return Exp(-2 * k * Sin(middle) * Sin(s / 2));
  });
  return {Scaled{relative / (2 * half_mass_), -(Versine(x) * k)}, relative};
}

Extended VonMisesDistribution::Pdf(Extended x) const {
  if (AnyNaN(concentration_, x)) return kNotANumber;
  if (std::fabs(x) > QorPi) return 0;
  return Scaled{1 / (2 * half_mass_), -(Versine(std::fabs(x)) * concentration_)}.Value();
}

Tails VonMisesDistribution::At(Extended x) const {
  if (AnyNaN(concentration_, x)) return UnknownTails();
  if (x < 0) return At(-x).Mirrored();
  if (x >= QorPi) return AboveAll();
  return {Tail::kUpper, UpperTailAt(x).probability};
}

Extended VonMisesDistribution::Quantile(Tail tail, Extended p) const {
  RequireProbability(p);
  if (AnyNaN(concentration_, p)) return kNotANumber;
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  if (p == 0.5L) return 0;
  const auto on_side = [=](Extended x) { return tail == Tail::kUpper ? x : -x; };
  // Closer to pi than the format resolves.
  if (UpperTailAt(kLastAngle).probability.Value() >= p) return on_side(QorPi);
  const Extended ln_p = Log(p);
  constexpr Extended tolerance = 1e-12L;
  constexpr Extended newton_threshold = 0.5L;
  constexpr Extended unit = 1e-19L;
  Extended below = 0;
  Extended above = kLastAngle;
  Extended x = std::fmin(std::sqrt(-2 * Log(2 * p) * Variance()), QorPi / 2);
  for (Extended excess = 1, step = 1;
       std::fabs(excess) > tolerance && std::fabs(step) > unit * x;) {
    const UpperTail upper = UpperTailAt(x);
    const Extended relative = upper.probability.Value() / p - 1;
    excess =
        std::fabs(relative) < newton_threshold ? Log1p(relative) : upper.probability.Log() - ln_p;
    (excess > 0 ? below : above) = x;
    // Newton's step for the logarithm of the distance from pi, which the tail is about a power of.
    const Extended rest = (kPi - x).hi;
    Extended next = x - rest * Expm1(-excess * upper.relative / rest);
    if (std::fabs(excess) > newton_threshold && !(next > below && next < above))
      next = below + (above - below) / 2;
    step = next - x;
    x = next;
  }
  return on_side(x);
}

Extended VonMisesDistribution::Variance() const {
  if (AnyNaN(concentration_)) return kNotANumber;
  const Extended k = concentration_;
  return Integral(Reach(k, 0),
                  [=](Extended x) {
                    const Extended sine = Sin(x / 2);
                    return x * x * Exp(-2 * k * sine * sine);
                  }) /
         half_mass_;
}

Interval<Extended> VonMisesDistribution::Support() const {
  return {-QorPi, QorPi};
}

}  // namespace qorvex
