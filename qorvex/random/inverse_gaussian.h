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
/// An attempt takes two uniform values: 1.5 attempts on average for h = 2 and b = 1/2, 0.8 times
/// the root of the larger parameter for large ones, and at most h^(b-1) + 2 for a small h and b
/// below 1: 4.0E6 for h = 1E-8 and b = 0. No parameters that are taken need more than 1E8.
///
/// EMathError rsInvalidValue: unless b >= 0 and h > 0; when b > h sqrt(1.7E308) / 4; for parameters
/// above 1E14, where variates take 8E6 attempts or about 1 s; when a mode that the region is made
/// of is below 5E-324, or when rounding has left too few digits of it, which can happen for b above
/// 5E7 h where b is about 1000, above 5E6 h where it is about 1E7, and for h below 1E-8 where b is
/// about 1, below 5E-9 where it is near 0; for h above both 1E-8 and 1E-4 b it never does.
/// Random_Gamma(b) times 2/h serves there for b above 1: the densities differ by h^2/(4b) of
/// themselves. Stuck on 0, 1 - 2^-64 and NaN, for some parameters also on 1/2.
[[nodiscard]] QORVEX_EXPORT Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source);
[[nodiscard]] inline Extended Random_Inv_Gauss(Extended h, Extended b) {
  return Random_Inv_Gauss(h, b, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
