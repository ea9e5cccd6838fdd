#pragma once

/// @file
/// Binomial variates by inversion from the mode.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of successes in n trials of probability p, by a search that starts at the mode and
/// goes down and up in turn (C. D. Kemp 1986, "A modal method for generating binomial variables",
/// Communications in Statistics: Theory and Methods 15, 805-813). Exactly one uniform value is
/// taken, so the variate depends on it alone; the search takes about sqrt(n p (1-p)) steps.
/// Probabilities are summed in 64-bit doubles: a value that rounding leaves over when both ends are
/// reached gives the mode, which happens with probability 1e-16 n or so. EMathError rsInvalidValue
/// unless n >= 0 and 0 <= p <= 1. Stuck on none. Random_Binomial2 takes larger n, and its cost does
/// not grow.
[[nodiscard]] QORVEX_EXPORT Extended Random_Binomial1(std::int32_t n, Extended p,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_Binomial1(std::int32_t n, Extended p) {
  return Random_Binomial1(n, p, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
