#pragma once

/// @file
/// Poisson variates.
///
/// J. H. Ahrens and U. Dieter (1982), "Computer generation of Poisson deviates from modified normal
/// distributions", ACM Transactions on Mathematical Software 8, 163-179. For means of at least 10 a
/// normal variate is rounded down and corrected; the constants of seven digits that the
/// probabilities are computed with make them wrong by up to 3e-8 of themselves. Smaller means are
/// inverted with a table that ends at 35: larger variates never occur, which is a loss of ... at
/// most, just below a mean of 10.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A Poisson variate of the mean mu. One uniform value is taken for means below 10. EMathError
/// rsInvalidValue unless mu is at least 0 and finite.
[[nodiscard]] QORVEX_EXPORT Extended Random_Poisson(const Extended& mu, UniformSource source);
[[nodiscard]] inline Extended Random_Poisson(const Extended& mu) {
  return Random_Poisson(mu, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
