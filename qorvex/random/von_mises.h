#pragma once

/// @file
/// Variates of the von Mises distribution by the comparison of uniform values.
///
/// J. S. Dagpunar (1990), "Sampling from the von Mises distribution via a comparison of random
/// numbers", Journal of Applied Statistics 17, 165-168. The half circle is cut into intervals over
/// each of which the exponent falls by 1; one of them is chosen by its probability, and a place in
/// it is accepted by John von Neumann's comparisons (1951, "Various techniques used in connection
/// with random digits"), without an exponential. The probabilities come from a Gauss-Legendre rule
/// of six nodes and are wrong by at most 6e-9, which they are just above k = 1/2.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// An angle in radians, in [-pi, pi], with the density proportional to exp(k cos x). The table of
/// intervals is computed on every call; 3 to 5.3 uniform values are taken on average. EMathError
/// rsInvalidValue unless 0 <= k < 10, beyond which the table has no room. Stuck on 0.
[[nodiscard]] QORVEX_EXPORT Extended Random_von_Mises(Extended k, UniformSource source);
[[nodiscard]] inline Extended Random_von_Mises(Extended k) {
  return Random_von_Mises(k, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
