#pragma once

/// @file
/// The exponential distribution with mean 1. The Weibull and the Gumbel distribution are those of
/// functions of its variable.

#include "qorvex/base/special/extended_pair.h"
#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex::distributions {

/// Both tails at t > 0, given as its logarithm.
[[nodiscard]] Tails UnitExponentialTails(special::ExtendedPair ln_t);

/// The logarithm of the point with the given tail, 0 < p < 1.
[[nodiscard]] special::ExtendedPair LnUnitExponentialQuantile(Tail tail, Extended p);

}  // namespace qorvex::distributions
