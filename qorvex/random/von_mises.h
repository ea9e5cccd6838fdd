#pragma once

/// @file
/// Von Mises variates by comparisons of uniform values.
///
/// J. S. Dagpunar (1990), "Sampling from the von Mises distribution via a comparison of random
/// numbers", Journal of Applied Statistics 17, 165-168. The half circle is cut into intervals over
/// each of which the exponent falls by 1. An interval is chosen by its probability, and a place in
/// it is accepted by John von Neumann's comparisons (1951, "Various techniques used in connection
/// with random digits"), without an exponential.

#include <array>
#include <cstddef>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// An angle in radians, in [-pi, pi]. The density is proportional to exp(k cos x).
///
/// - The probabilities of the intervals come from a Gauss-Legendre rule with six nodes. Their error
///   is at most 6E-9, reached just above k = 1/2.
/// - EMathError rsInvalidValue unless 0 <= k < 10 (NaN included): the table of intervals has no
///   room for more.
/// - Draws: 3 to 5.3 uniform values on average. Every call computes the table of intervals.
/// - Never returns if the source only ever yields 0.
[[nodiscard]] QORVEX_EXPORT Extended Random_von_Mises(Extended k, UniformSource source);
[[nodiscard]] inline Extended Random_von_Mises(Extended k) {
  return Random_von_Mises(k, ClassicRandom);
}
/// @}

/// Random_von_Mises for many variates of one concentration; see Fill.
class QORVEX_EXPORT VonMisesSampler {
 public:
  /// Raises the error of Random_von_Mises.
  explicit VonMisesSampler(Extended k);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  void ComputeWeights();

  static constexpr std::size_t kMaxIntervals = 20;

  Extended k_;
  // The intervals of (0, pi), over each of which k cos x falls by at most 1, and their
  // probabilities.
  std::size_t count_;
  std::array<Extended, kMaxIntervals + 1> ends_{};
  std::array<Extended, kMaxIntervals> weights_{};
};

}  // namespace qorvex::inline QorvexRandom
