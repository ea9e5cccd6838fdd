#pragma once

/// @file
/// Beta variates by rejection from the log-logistic distribution.
///
/// R. C. H. Cheng (1978), "Generating beta variates with nonintegral shape parameters",
/// Communications of the ACM 21, 317-322, in the form of John Dagpunar (1988), "Principles of
/// Random Variate Generation", Clarendon Press. An attempt takes two uniform values; 1 to 1.5
/// attempts are needed on average for shapes above 1, up to 4 below.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A beta variate of the shapes a and b, in [0, 1]. The variate for exchanged shapes is 1 less it,
/// so a variate near 0 has lost digits when a < b. Rounding can give 0 and 1 themselves. EMathError
/// rsInvalidValue: unless both shapes are positive; when their sum is above 1E18, where rounding
/// would decide what is accepted, or their quotient beyond the extended range. Stuck on 0,
/// 1 - 2^-64 and NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Beta(Extended a, Extended b, UniformSource source);
[[nodiscard]] inline Extended Random_Beta(Extended a, Extended b) {
  return Random_Beta(a, b, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
