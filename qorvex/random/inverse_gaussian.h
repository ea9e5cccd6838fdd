#pragma once

/// @file
/// Generalised inverse Gaussian variates by the ratio of uniforms.
///
/// J. S. Dagpunar (1989), "An easily implemented generalised inverse Gaussian generator",
/// Communications in Statistics: Simulation and Computation 18, 703-710.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A variate whose density is proportional to x^(b-1) exp(-h/2 (x + 1/x)). The inverse Gaussian
/// variate of mean m and shape s is m divided by the variate of h = s/m and b = 1/2.
///
/// An attempt takes two uniform values, or one when that is 0. The more concentrated the
/// distribution, the more attempts are needed: ...
///
/// EMathError rsInvalidValue unless b >= 0 and h > 0; when b > h sqrt(1.7E308) / 4; when one of the
/// modes of f(x) and of x^2 f(x), or the width of the region of the uniforms, is below 5E-324 or
/// beyond the extended range; ...
[[nodiscard]] QORVEX_EXPORT Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source);
[[nodiscard]] inline Extended Random_Inv_Gauss(Extended h, Extended b) {
  return Random_Inv_Gauss(h, b, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
