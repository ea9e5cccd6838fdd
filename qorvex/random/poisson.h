#pragma once

/// @file
/// Poisson variates.
///
/// J. H. Ahrens and U. Dieter (1982), "Computer generation of Poisson deviates from modified normal
/// distributions", ACM Transactions on Mathematical Software 8, 163-179. For means of at least 10 a
/// normal variate is rounded down and corrected; the constants of seven digits that the
/// probabilities are computed with make them wrong by up to 6E-8 of themselves, and by 2E-6 at
/// eight standard deviations. Smaller means are
/// inverted up to 35: larger variates never occur, though they have a probability of 1.7E-10 just
/// below a mean of 10, and of 3.0E-19 at a mean of 5.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A Poisson variate of the mean mu. One uniform value is taken for means below 10, 3.1 to 3.3 on
/// average for others. EMathError rsInvalidValue unless mu is at least 0 and finite. Stuck on NaN,
/// for some means also on 1 - 2^-64; for means of at least 10 on 0 as well.
[[nodiscard]] QORVEX_EXPORT Extended Random_Poisson(const Extended& mu, UniformSource source);
[[nodiscard]] inline Extended Random_Poisson(const Extended& mu) {
  return Random_Poisson(mu, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
