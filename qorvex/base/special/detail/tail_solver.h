#pragma once

/// @file
/// Quantiles of distributions on the positive numbers.

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/tails.h"

namespace qorvex::special {

/// What the solver needs to know of a distribution at a point.
struct TailsAndDensity {
  Tails tails;
  /// The density of the logarithm of the variable: x f(x).
  Scaled log_density;
  /// The derivative of the logarithm of that density by ln x.
  Extended slope;
};

/// The iteration ends after this many steps at the latest.
inline constexpr int kMaxIterations = 1000;
/// Closer to the root than this, in ln p, the tail itself is compared instead of its logarithm, and
/// Newton's step becomes Halley's.
inline constexpr Extended kNewtonThreshold = 0.5L;
/// The iteration ends when what a step leaves, about excess^2 * step, is smaller.
inline constexpr Extended kTolerance = 1e-21L;

/// The lower-tail normal quantile within 0.0005 for 0 < p <= 0.5 (Hastings 1955, "Approximations
/// for Digital Computers"): a start for iterations.
inline Extended RoughNormalQuantile(Extended p) {
  const Extended t = std::sqrt(-2 * Log(p));
  return (2.515517L + t * (0.802853L + t * 0.010328L)) /
             (1 + t * (1.432788L + t * (0.189269L + t * 0.001308L))) -
         t;
}

/// The point x > 0 whose given tail is p, where 0 < p < 1, by Newton's and Halley's iterations for
/// ln tail(x) = ln p in the variable ln x.
///
/// Where ln X has a log-concave density, which the gamma and the F distribution have, ln tail is
/// concave: a step from outside the root cannot pass it, and a step from inside ends outside. So
/// the iteration converges from every start. A step outwards is limited to largest_step, for a tail
/// that falls so steeply that the way back would be long.
/// The last step is added without rounding.
template <class Distribution>
Scaled SolveTail(Tail tail, Extended p, Extended start, Extended largest_step, Distribution at) {
  const Extended ln_p = Log(p);
  const Extended outwards = tail == Tail::kLower ? -1 : 1;
  Extended x = std::max(start, std::numeric_limits<Extended>::min());
  for (int i = 0; i < kMaxIterations; ++i) {
    const TailsAndDensity here = at(x);
    const Scaled probability = here.tails.ScaledProbability(tail);
    const Extended relative = ((probability - p) / Scaled(p)).Value();
    const Extended excess = std::fabs(relative) < kNewtonThreshold
                                ? Log1p(relative)
                                : here.tails.LogProbability(tail) - ln_p;
    const Extended hazard = (here.log_density / probability).Value();
    Extended step = outwards * excess / hazard;
    if (std::fabs(excess) < kNewtonThreshold)
      step /= 1 + step * (here.slope + outwards * hazard) / 2;
    if (excess > 0) step = outwards * std::min(std::fabs(step), largest_step);
    const Extended change = x * Expm1(step);
    if (std::fabs(excess) < kNewtonThreshold && std::fabs(excess * excess * step) < kTolerance)
      return Scaled(x) + change;
    x += change;
    if (!(x > 0 && x <= std::numeric_limits<Extended>::max())) break;
  }
  return x;
}

}  // namespace qorvex::special
