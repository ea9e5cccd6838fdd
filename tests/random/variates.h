#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

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

/// Draws variates of parameters that are fixed.
using Draw = std::function<Extended(UniformSource source)>;

/// The samplers of the variates that have one, by the same names.
inline const std::map<std::string, Draw (*)(Extended a, Extended b)>& Samplers() {
  using E = Extended;
  static const std::map<std::string, Draw (*)(Extended a, Extended b)> samplers = {
      {"gamma", [](E a, E) -> Draw { return GammaSampler(a); }},
      {"chi-square", [](E a, E) -> Draw { return ChiSquareSampler(Nearest<std::int32_t>(a)); }},
      {"weibull", [](E a, E) -> Draw { return WeibullSampler(a); }},
      {"student-t", [](E a, E) -> Draw { return StudentTSampler(Nearest<std::int32_t>(a)); }},
      {"log-normal", [](E a, E b) -> Draw { return LogNormalSampler(a, b); }},
      {"beta", [](E a, E b) -> Draw { return BetaSampler(a, b); }},
      {"inverse-gaussian", [](E a, E b) -> Draw { return InverseGaussianSampler(a, b); }},
      {"von-mises", [](E a, E) -> Draw { return VonMisesSampler(a); }},
      {"binomial-1",
       [](E a, E b) -> Draw { return BinomialInversionSampler(Nearest<std::int32_t>(a), b); }},
      {"binomial-2", [](E a, E b) -> Draw { return BinomialSampler(Nearest<std::int64_t>(a), b); }},
      {"negative-binomial", [](E a, E b) -> Draw { return NegativeBinomialSampler(a, b); }},
      {"poisson", [](E a, E) -> Draw { return PoissonSampler(a); }},
  };
  return samplers;
}

/// The routine of a variate, and its sampler if it has one.
inline std::vector<Draw> WaysToDraw(const std::string& variate, Extended a, Extended b) {
  std::vector<Draw> ways = {
      [=, draw = Variates().at(variate)](UniformSource source) { return draw(a, b, source); }};
  if (const auto sampler = Samplers().find(variate); sampler != Samplers().end())
    ways.push_back(sampler->second(a, b));
  return ways;
}

}  // namespace qorvex::testing
