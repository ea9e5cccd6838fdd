#pragma once

/// @file
/// The exponential distribution with mean 1. The others are those of functions of its variable.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex::distributions {

using elementary::Wide;

/// Both tails at t > 0.
[[nodiscard]] Tails UnitExponentialTails(const Wide& t);

/// Both tails at t > 0, given as its logarithm.
[[nodiscard]] Tails UnitExponentialTailsAtLog(const Wide& ln_t);

/// The point with the given tail, 0 < p < 1.
[[nodiscard]] Wide UnitExponentialQuantile(Tail tail, const Extended& p);

/// t = e^ln_t where the tails can tell it from 0 and infinity: for |ln_t| < 2^15. Otherwise 0, or a
/// number whose exponential is beyond all bounds.
[[nodiscard]] Wide PointOfLog(const Wide& ln_t);

}  // namespace qorvex::distributions
