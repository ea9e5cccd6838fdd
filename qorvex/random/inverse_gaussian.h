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
/// A generalised inverse Gaussian variate. The density is proportional to x^(b-1) exp(-h/2 (x +
/// 1/x)). For an inverse Gaussian variate with mean m and shape s, divide m by the variate of h =
/// s/m and b = 1/2.
///
/// EMathError rsInvalidValue, in this order:
///
/// - unless h > 0 and b >= 0 (NaN included);
/// - if b > h sqrt(1.7E308) / 4;
/// - if a parameter exceeds 1E14, where a variate would take 8E6 attempts or about 1 s;
/// - if one of the modes that define the region is below 5E-324, or rounding has left it too few
///   digits. That can happen for b > 5E7 h at b near 1000, for b > 5E6 h at b near 1E7, for h <
///   1E-8 at b near 1, and for h < 5E-9 at b near 0. It never happens if h exceeds both 1E-8 and
///   1E-4 b. If b > 1, use Random_Gamma(b) times 2/h instead: the relative difference of the
///   densities is h^2/(4b);
/// - if the region that points are drawn from is narrower than 5E-324 or infinitely wide.
///
/// Draws: two uniform values an attempt. The average number of attempts is 1.5 for h = 2 and b =
/// 1/2, 0.8 sqrt(max(h, b)) for large parameters, and at most h^(b-1) + 2 for small h and b < 1:
/// 4.0E6 for h = 1E-8 and b = 0. It never exceeds 1E8.
///
/// Never returns if the source only ever yields 0, 1 - 2^-64 or NaN; for some parameters also if it
/// only ever yields 1/2.
[[nodiscard]] QORVEX_EXPORT Extended Random_Inv_Gauss(Extended h, Extended b, UniformSource source);
[[nodiscard]] inline Extended Random_Inv_Gauss(Extended h, Extended b) {
  return Random_Inv_Gauss(h, b, ClassicRandom);
}
/// @}

/// Random_Inv_Gauss for many variates with the same parameters; see Fill.
class QORVEX_EXPORT InverseGaussianSampler {
 public:
  /// Raises the errors of Random_Inv_Gauss.
  InverseGaussianSampler(Extended h, Extended b);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  Extended c_;
  Extended r_;
  Extended power_;
  Extended at_mode_;
};

}  // namespace qorvex::inline QorvexRandom
