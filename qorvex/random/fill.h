#pragma once

/// @file
/// Many variates at once.
///
/// Each routine writes the variates that as many single calls would give, one after the other from
/// the same source, into any contiguous range of extended values, a TQorFloatVector for instance;
/// what depends on the parameters alone is computed once. An empty range is left alone, after the
/// checks. Errors, draws and limits are those of the single variate; after an error in the middle
/// the elements in front hold variates. O(n).

#include <span>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// The source's values themselves.
QORVEX_EXPORT void FillUniform(std::span<Extended> variates, UniformSource source = ClassicRandom);

/// Standard normal variates; see Random_Normal.
QORVEX_EXPORT void FillNormal(std::span<Extended> variates, UniformSource source = ClassicRandom);

/// Normal variates; see Random_Normal.
QORVEX_EXPORT void FillNormal(std::span<Extended> variates, Extended mean, Extended std_dev,
                              UniformSource source = ClassicRandom);

/// Exponential variates of mean 1; see Random_Exponential.
QORVEX_EXPORT void FillExponential(std::span<Extended> variates,
                                   UniformSource source = ClassicRandom);

/// Gamma variates of scale 1; see Random_Gamma. EMathError as there, before anything is written.
QORVEX_EXPORT void FillGamma(std::span<Extended> variates, Extended shape,
                             UniformSource source = ClassicRandom);

}  // namespace qorvex::inline QorvexRandom
