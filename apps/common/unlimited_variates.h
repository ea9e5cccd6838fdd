#pragma once

/// @file
/// Variates for parameters that the classic routines draw wrongly, cut short or refuse.

#include <functional>

#include "qorvex/base/element_types.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::apps {

/// Draws variates of parameters that are fixed; what these need is computed before.
using FigureDraw = std::function<Extended(UniformSource source)>;

/// Student's t for 0 < df < infinity: Random_Cauchy for 1, Random_T for the other whole numbers
/// from 3 on that it takes, otherwise Z / sqrt(C / df) with a normal Z and a chi-square C. For df
/// below 2 the root of C comes from a gamma variate of shape df/2 + 1 and a power of a uniform
/// value, so that it does not underflow. Infinite where the variate is beyond the range.
[[nodiscard]] FigureDraw PrepareStudentT(Extended df);

/// Poisson variates of a finite mean > 0. Below 10 the uniform value is inverted as far as it
/// reaches: Random_Poisson's search serves but for the last 1e-9 of the probability, which is
/// looked up in the upper tail. From 10 on it is Random_Poisson.
[[nodiscard]] FigureDraw PreparePoisson(Extended mean);

/// Angles of the von Mises distribution, in [-pi, pi], for a finite concentration k >= 0;
/// EMathError rsInvalidValue for a negative one. Below 10 it is Random_von_Mises, from 10 on the
/// rejection from a wrapped Cauchy distribution of D. J. Best and N. I. Fisher (1979), "Efficient
/// simulation of the von Mises distribution", Journal of the Royal Statistical Society C 28,
/// 152-157: 1.5 attempts of two uniform values on average, and one for the sign.
[[nodiscard]] FigureDraw PrepareVonMises(Extended k);

}  // namespace qorvex::apps
