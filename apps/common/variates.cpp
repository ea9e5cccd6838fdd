#include "apps/common/variates.h"

#include <cstdint>
#include <limits>

#include "apps/common/input_error.h"
#include "apps/common/unlimited_variates.h"
#include "qorvex/base/checked_math.h"
#include "qorvex/base/text.h"
#include "qorvex/random/QorvexRandom.h"

namespace qorvex::apps {

namespace {

using Arguments = const VariateArguments&;
using Figures = TQorFloatVector&;
using Source = UniformSource;

// Draws of one figure, by a function that returns it.
template <class Sampler>
Draw Figure(Sampler sampler) {
  return [sampler](Figures x, Source s) { x[0] = sampler(s); };
}

// Draws of a figure times a scale.
template <class Sampler>
Draw Scaled(Extended scale, Sampler sampler) {
  return Figure([=](Source s) { return scale * sampler(s); });
}

Draw PrepareMultivariateNormal(Arguments a) {
  return [mean = a.List(0), covariance = a.List(1)](Figures x, Source s) {
    TQorFloatVector factor;
    std::int32_t error = 0;
    Random_MVNorm(mean, covariance, factor, x, error, s);
    if (error != 0) {
      throw InputError(InputFault::kNoResult, "multivariate-normal",
                       "the covariance matrix is not positive definite");
    }
  };
}

Draw PrepareBeta(Arguments a) {
  return Figure([beta = BetaSampler(a[0], a[1]), start = a[2], width = a[3] - a[2]](Source s) {
    return start + width * beta(s);
  });
}

Extended StandardExponential(Source s) {
  return Random_Exponential(s);
}

std::string WhatIsWrongWithCovariance(Arguments a) {
  const std::size_t n = a.List(0).size();
  const std::size_t needed = n * (n + 1) / 2;
  const std::size_t given = a.List(1).size();
  if (given == needed) return "";
  return "--covariance: the upper triangle for " + Int2EStr(n) + (n == 1 ? " mean" : " means") +
         " has " + Int2EStr(needed) + (needed == 1 ? " number" : " numbers") + ", not " +
         Int2EStr(given);
}

std::string WhatIsWrongWithSupport(Arguments a) {
  const char* const wrong = WhatIsWrongWithEnds(a[2], a[3]);
  return wrong == nullptr ? "" : wrong;
}

std::string WhatIsWrongWithInversion(Arguments a) {
  const char* const wrong = WhatIsWrong(a[1], NumberKind::kInt32);
  return wrong == nullptr
             ? ""
             : "--trials: " + Float2EStr(a[1], 0) + ' ' + wrong + ", as --method inversion needs";
}

std::string WhatIsWrongWithWholeDf(Arguments a) {
  const char* const wrong = WhatIsWrong(a[0], NumberKind::kInt32);
  return wrong == nullptr ? "" : "--df: " + Float2Str(a[0]) + ' ' + wrong + ", as --classic needs";
}

std::vector<Variate> AllVariates() {
  constexpr auto real = NumberKind::kReal;
  constexpr auto positive = NumberKind::kPositive;
  return {
      {"uniform",
       "Uniform values, from 0 to below 1",
       {},
       {{"", [](Arguments) { return Figure([](Source s) { return s(); }); }}}},
      {"normal",
       "Normal variates",
       {kMean, kStdDev},
       {{"",
         [](Arguments a) {
           return Figure([mean = a[0], deviation = a[1]](Source s) {
             return Random_Normal(mean, deviation, s);
           });
         }}}},
      {"exponential",
       "Exponential variates",
       {{"--mean", "mean", positive, 1, true, "", "--rate"}},
       {{"", [](Arguments a) { return Scaled(a[0], StandardExponential); }}}},
      {"gamma",
       "Gamma variates",
       {{"--shape", "shape", positive, 2}, kGammaScale},
       {{"", [](Arguments a) { return Scaled(a[1], GammaSampler(a[0])); },
         "--shape is at least 5e-324"}}},
      {"chi-square",
       "Chi-square variates",
       {{"--df", "degrees of freedom", NumberKind::kInt32, 5}},
       {{"", [](Arguments a) { return Figure(ChiSquareSampler(static_cast<std::int32_t>(a[0]))); },
         "--df is at least 1"}}},
      {"weibull",
       "Weibull variates; with a negative shape, reciprocals of them (Frechet variates)",
       {{"--shape", "shape", real, 2}, kScale},
       {{"", [](Arguments a) { return Scaled(a[1], WeibullSampler(a[0])); },
         "--shape is not 0, nor within 5e-324 of it"}}},
      {"beta",
       "Beta variates, in [0, 1] or between two ends",
       {{"--a", "first shape", positive, 2, false, "--alpha"},
        {"--b", "second shape", positive, 5, false, "--beta"},
        kLowerEnd,
        kUpperEnd},
       {{"", PrepareBeta,
         "--a and --b add up to at most 1e18, and neither is tiny beside the other",
         WhatIsWrongWithSupport}}},
      {"student-t",
       "Student's t variates",
       {{"--df", "degrees of freedom, which need not be whole", NumberKind::kDegreesOfFreedom, 5}},
       {{"", [](Arguments a) { return Figure(PrepareStudentT(a[0])); },
         "--df is from 1e-17 to 1e15"}},
       VariateMethod{
           "", [](Arguments a) { return Figure(StudentTSampler(static_cast<std::int32_t>(a[0]))); },
           "--df is from 1e-17 to 1e15; with --classic it is a whole number up to "
           "2147483647, and 1 and 2 draw as 3 does",
           WhatIsWrongWithWholeDf}},
      {"cauchy",
       "Cauchy variates",
       {{"--location", "median", real, 0, true}, kScale},
       {{"",
         [](Arguments a) {
           return Figure([location = a[0], scale = a[1]](Source s) {
             return location + scale * Random_Cauchy(s);
           });
         }}}},
      {"log-normal",
       "Log-normal variates; mean and standard deviation of ln X",
       {kMean, kStdDev},
       // Random_LogNormal takes exponentials of these, which need not be in range.
       {{"",
         [](Arguments a) {
           return Figure([mean = a[0], deviation = a[1]](Source s) {
             return CheckedExp(Random_Normal(mean, deviation, s));
           });
         }}}},
      {"inverse-gaussian",
       "Generalised inverse Gaussian variates; density as x^(b-1) exp(-h/2 (x + 1/x))",
       {{"--h", "concentration h", positive, 2}, {"--b", "order b, at least 0", real, 5}},
       {{"", [](Arguments a) { return Figure(InverseGaussianSampler(a[0], a[1])); },
         "--b is at least 0, both are at most 1e14, and --h is neither tiny nor small beside --b: "
         "1e-8 and 1e-4 times --b suffice"}}},
      {"von-mises",
       "Angles of the von Mises distribution, from -pi to pi",
       {kConcentration},
       {{"", [](Arguments a) { return Figure(PrepareVonMises(a[0])); },
         "--concentration is at least 0"}},
       VariateMethod{"", [](Arguments a) { return Figure(VonMisesSampler(a[0])); },
                     "--concentration is at least 0 and, with --classic, below 10"}},
      {"multivariate-normal",
       "Vectors of normal variates, one a line",
       {{"--mean", "means", NumberKind::kReals},
        {"--covariance", "upper triangle of the covariance matrix, column by column",
         NumberKind::kReals}},
       {{"", PrepareMultivariateNormal, "", WhatIsWrongWithCovariance}}},
      {"binomial",
       "Binomial variates: successes in independent trials",
       {kSuccessProbability,
        {"--trials", "number of trials", NumberKind::kInt64, 20, false, "--size"}},
       {{"btpe",
         [](Arguments a) {
           return Figure(BinomialSampler(static_cast<std::int64_t>(a[1]), a[0]));
         }},
        {"inversion",
         [](Arguments a) {
           return Figure(BinomialInversionSampler(static_cast<std::int32_t>(a[1]), a[0]));
         },
         "", WhatIsWrongWithInversion}}},
      {"negative-binomial",
       "Negative binomial variates: successes before a given number of failures",
       {kOpenSuccessProbability,
        {"--failures", "number of failures, which need not be whole", positive, 2, false,
         "--size"}},
       {{"", [](Arguments a) { return Figure(NegativeBinomialSampler(a[1], a[0])); },
         "--failures is at most 744 / -ln(1 - p) for p up to 0.7 and 2e7 beyond, where p is not "
         "within 5e-8 of 1"}}},
      {"poisson",
       "Poisson variates",
       {kLambda},
       {{"", [](Arguments a) { return Figure(PreparePoisson(a[0])); }}},
       VariateMethod{"", [](Arguments a) { return Figure(PoissonSampler(a[0])); },
                     "with --classic and --lambda below 10, no variate exceeds 35"}},
  };
}

}  // namespace

std::span<const Variate> Variates() {
  static const std::vector<Variate> variates = AllVariates();
  return variates;
}

}  // namespace qorvex::apps
