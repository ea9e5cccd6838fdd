#pragma once

/// @file
/// Routines that produce many variates at once.
///
/// Each routine fills a contiguous range of extended values, a TQorFloatVector for instance, with
/// the variates that the same number of single calls would return from the same source. What
/// depends only on the parameters is computed once.
///
/// A sampler also computes it once: `const GammaSampler gamma(2.5L)` is prepared for one shape, and
/// `gamma(stream)` is the variate that Random_Gamma(2.5L, stream) would return, with the same draws
/// and the same errors. Every routine whose parameters need preparation has a sampler beside it.
/// Its constructor raises the errors of the parameters; drawing does not change it, so threads may
/// share one, each with a source of its own. It takes at most 700 bytes.
///
/// For all routines below:
///
/// - An empty range: the parameters are checked, and nothing is drawn.
/// - Errors, draws and limits: those of the single variate. After an error in the middle, the
///   elements before it hold variates.
/// - Cost: O(n).

#include <span>
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// The values of the source.
QORVEX_EXPORT void FillUniform(std::span<Extended> variates, UniformSource source = ClassicRandom);

/// Standard normal variates; see Random_Normal.
QORVEX_EXPORT void FillNormal(std::span<Extended> variates, UniformSource source = ClassicRandom);

/// Normal variates; see Random_Normal.
QORVEX_EXPORT void FillNormal(std::span<Extended> variates, Extended mean, Extended std_dev,
                              UniformSource source = ClassicRandom);

/// Exponential variates with mean 1; see Random_Exponential.
QORVEX_EXPORT void FillExponential(std::span<Extended> variates,
                                   UniformSource source = ClassicRandom);

/// Gamma variates with scale 1; see Random_Gamma. The shape is checked before anything is written.
QORVEX_EXPORT void FillGamma(std::span<Extended> variates, Extended shape,
                             UniformSource source = ClassicRandom);

/// Variates of any sampler: Fill(counts, PoissonSampler(5), stream).
///
/// A sampler may also be a function of your own from a UniformSource to a variate.
template <class Sampler>
requires std::is_invocable_r_v<Extended, const Sampler&, UniformSource>
void Fill(std::span<Extended> variates, const Sampler& sampler,
          UniformSource source = ClassicRandom) {
  for (Extended& x : variates) x = sampler(source);
}

}  // namespace qorvex::inline QorvexRandom
