#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <string>

#include "qorvex/random/QorvexRandom.h"

namespace qorvex::testing {

/// Draws a variate with up to two parameters; those that it does not have are ignored.
using NamedDraw = Extended (*)(Extended a, Extended b, UniformSource source);

/// The nearest value of an integer type; 0 for NaN.
template <class Int>
Int Nearest(Extended x) {
  using Limits = std::numeric_limits<Int>;
  if (std::isnan(x)) return 0;
  return static_cast<Int>(std::clamp<Extended>(x, Limits::min(), Limits::max()));
}

/// The variates of one figure, by the names that the reference tables use.
inline const std::map<std::string, NamedDraw>& Variates() {
  using E = Extended;
  using S = UniformSource;
  static const std::map<std::string, NamedDraw> variates = {
      {"normal", [](E, E, S s) { return Random_Normal(s); }},
      {"scaled-normal", [](E a, E b, S s) { return Random_Normal(a, b, s); }},
      {"exponential", [](E, E, S s) { return Random_Exponential(s); }},
      {"cauchy", [](E, E, S s) { return Random_Cauchy(s); }},
      {"gamma", [](E a, E, S s) { return Random_Gamma(a, s); }},
      {"chi-square", [](E a, E, S s) { return Random_ChiSq(Nearest<std::int32_t>(a), s); }},
      {"weibull", [](E a, E, S s) { return Random_Weibull(a, s); }},
      {"student-t", [](E a, E, S s) { return Random_T(Nearest<std::int32_t>(a), s); }},
      {"log-normal", [](E a, E b, S s) { return Random_LogNormal(a, b, s); }},
      {"beta", [](E a, E b, S s) { return Random_Beta(a, b, s); }},
      {"inverse-gaussian", [](E a, E b, S s) { return Random_Inv_Gauss(a, b, s); }},
      {"von-mises", [](E a, E, S s) { return Random_von_Mises(a, s); }},
      {"binomial-1",
       [](E a, E b, S s) { return Random_Binomial1(Nearest<std::int32_t>(a), b, s); }},
      {"binomial-2",
       [](E a, E b, S s) { return Random_Binomial2(Nearest<std::int64_t>(a), b, s); }},
      {"negative-binomial", [](E a, E b, S s) { return Random_Neg_Binomial(a, b, s); }},
      {"poisson", [](E a, E, S s) { return Random_Poisson(a, s); }},
  };
  return variates;
}

}  // namespace qorvex::testing
