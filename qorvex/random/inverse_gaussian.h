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
/// An attempt takes two uniform values. The more concentrated the distribution, the more attempts
/// are needed: 1.5 on average for h = 2 and b = 1/2, and 0.8 times the root of the larger parameter
/// for large ones.
///
/// The width of the region is computed from a difference that loses its digits for b far above h.
/// Up to b = 1E8 h no harm shows; for b = 1000 the variance is 5 times too large at 2E9 h, for b =
/// 1E6 twice too large at 3E8 h; beyond some 3E9 h nothing is left of the difference, which is an
/// error. Random_Gamma(b) times 2/h serves there: the densities differ by h^2/(4b) of themselves.
///
/// EMathError rsInvalidValue: unless b >= 0 and h > 0; when b > h sqrt(1.7E308) / 4; for parameters
/// above 1E15; when one of the two modes or the width of the region is below 5E-324 or beyond the
/// extended range. Stuck on 0, 1 - 2^-64 and NaN.
[[nodiscard]] QORVEX_EXPORT Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source);
[[nodiscard]] inline Extended Random_Inv_Gauss(Extended h, Extended b) {
  return Random_Inv_Gauss(h, b, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
