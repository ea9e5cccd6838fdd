#include "apps/common/distributions.h"

#include <algorithm>

#include "qorvex/stats/distributions/distributions.h"

namespace qorvex::apps {

namespace {

constexpr auto kReal = NumberKind::kReal;
constexpr auto kShape = NumberKind::kShape;
constexpr auto kDegrees = NumberKind::kDegreesOfFreedom;
constexpr auto kCount = NumberKind::kCount;

std::uint32_t Count(Extended number) {
  return static_cast<std::uint32_t>(number);
}

std::vector<Family> AllFamilies() {
  const NumberParameter df = {"--df", "degrees of freedom", kDegrees, 5};
  const NumberParameter location = {"--location", "location", kReal, 0, true};
  return {
      {.name = "normal",
       .aliases = {"norm", "gaussian"},
       .summary = "The normal distribution",
       .parameters = {kMean, kStdDev},
       .make = [](Numbers p) { return Erase(NormalDistribution(p[0], p[1])); },
       .classic = kClassicNormal},
      {.name = "log-normal",
       .aliases = {"lognormal", "lnorm"},
       .summary = "The log-normal distribution; mean and standard deviation of ln X",
       .parameters = {kMean, kStdDev},
       .make = [](Numbers p) { return Erase(LogNormalDistribution(p[0], p[1])); },
       .classic = kClassicLogNormal},
      {.name = "exponential",
       .aliases = {"exp"},
       .summary = "The exponential distribution",
       .parameters = {{"--mean", "mean", NumberKind::kPositive, 2, false, "", "--rate"}},
       .make = [](Numbers p) { return Erase(ExponentialDistribution(p[0])); },
       .classic = kClassicExponential},
      {.name = "gamma",
       .summary = "The gamma distribution",
       .parameters = {{"--shape", "shape", kShape, 2}, kGammaScale},
       .make = [](Numbers p) { return Erase(GammaDistribution(p[0], p[1])); },
       .classic = kClassicGamma},
      {.name = "chi-square",
       .aliases = {"chi-squared", "chisq", "chi2"},
       .summary = "The chi-square distribution",
       .parameters = {df},
       .make = [](Numbers p) { return Erase(ChiSquareDistribution(p[0])); },
       .classic = kClassicChiSquare},
      {.name = "student-t",
       .aliases = {"t"},
       .summary = "Student's t distribution",
       .parameters = {df},
       .make = [](Numbers p) { return Erase(StudentTDistribution(p[0])); },
       .classic = kClassicStudentT},
      {.name = "f",
       .summary = "The F distribution",
       .parameters = {{"--df1", "degrees of freedom of the numerator", kDegrees, 5},
                      {"--df2", "degrees of freedom of the denominator", kDegrees, 5}},
       .make = [](Numbers p) { return Erase(FDistribution(p[0], p[1])); },
       .classic = kClassicF},
      {.name = "beta",
       .summary = "The beta distribution, on [0, 1] or between two ends",
       .parameters = {{.option = "--a",
                       .name = "first shape",
                       .kind = kShape,
                       .start = 2,
                       .aliases = "--alpha"},
                      {.option = "--b",
                       .name = "second shape",
                       .kind = kShape,
                       .start = 5,
                       .aliases = "--beta"},
                      kLowerEnd,
                      kUpperEnd},
       .make =
           [](Numbers p) { return Erase(BetweenEnds(BetaDistribution(p[0], p[1]), p[2], p[3])); },
       .classic = kClassicBeta,
       .inconsistency = [](Numbers p) { return WhatIsWrongWithEnds(p[2], p[3]); }},
      {.name = "uniform",
       .aliases = {"unif"},
       .summary = "The continuous uniform distribution between two ends",
       .parameters = {kLowerEnd, kUpperEnd},
       .make = [](Numbers p) { return Erase(UniformDistribution(p[0], p[1])); },
       .inconsistency = [](Numbers p) { return WhatIsWrongWithEnds(p[0], p[1]); }},
      {.name = "weibull",
       .summary = "The Weibull distribution; with a negative shape the Frechet distribution",
       .parameters = {{"--shape", "shape", kReal, 2}, kScale},
       .make = [](Numbers p) { return Erase(WeibullDistribution(p[0], p[1])); }},
      {.name = "gumbel",
       .aliases = {"extreme-value"},
       .summary = "The Gumbel distribution of maxima",
       .parameters = {location, kScale},
       .make = [](Numbers p) { return Erase(GumbelDistribution(p[0], p[1])); }},
      {.name = "logistic",
       .aliases = {"logis"},
       .summary = "The logistic distribution",
       .parameters = {location, kScale},
       .make = [](Numbers p) { return Erase(LogisticDistribution(p[0], p[1])); }},
      {.name = "cauchy",
       .aliases = {"lorentz"},
       .summary = "The Cauchy distribution",
       .parameters = {location, kScale},
       .make = [](Numbers p) { return Erase(CauchyDistribution(p[0], p[1])); }},
      {.name = "von-mises",
       .aliases = {"vonmises"},
       .summary = "The von Mises distribution of angles from -pi to pi",
       .parameters = {kConcentration},
       .make = [](Numbers p) { return Erase(VonMisesDistribution(p[0])); }},
      {.name = "generalised-inverse-gaussian",
       .aliases = {"inverse-gaussian", "gig"},
       .summary =
           "The generalised inverse Gaussian distribution; density as "
           "x^(b-1) exp(-h/2 (x + 1/x)). The inverse Gaussian distribution with a mean and a "
           "shape has h = shape / mean, b = -1/2 and scale = mean",
       .parameters = {{"--h", "concentration h", kShape, 2},
                      {"--b", "order b", kReal, 0.5L},
                      kScale},
       .make =
           [](Numbers p) {
             return Erase(GeneralisedInverseGaussianDistribution(p[0], p[1], p[2]));
           }},
      {.name = "binomial",
       .aliases = {"binom"},
       .summary = "The binomial distribution: successes in independent trials",
       .parameters = {kSuccessProbability,
                      {"--trials", "number of trials", kCount, 20, false, "-n,--size"}},
       .make = [](Numbers p) { return Erase(BinomialDistribution(p[0], Count(p[1]))); },
       .is_discrete = true,
       .classic = kClassicBinomial},
      {.name = "hypergeometric",
       .aliases = {"hyper"},
       .summary =
           "The hypergeometric distribution: successes in a sample drawn without replacement",
       .parameters = {{"--pop-size", "size of the population", kCount, 100},
                      {"--sample-size", "size of the sample", kCount, 20},
                      {"--successes", "successes in the population", kCount, 30}},
       .make =
           [](Numbers p) {
             return Erase(HypergeometricDistribution(Count(p[0]), Count(p[1]), Count(p[2])));
           },
       .is_discrete = true,
       .classic = kClassicHypergeometric},
      {.name = "poisson",
       .aliases = {"pois"},
       .summary = "The Poisson distribution",
       .parameters = {kLambda},
       .make = [](Numbers p) { return Erase(PoissonDistribution(p[0])); },
       .is_discrete = true,
       .classic = kClassicPoisson},
      {.name = "geometric",
       .aliases = {"geom"},
       .summary = "The geometric distribution: failures before the first success",
       .parameters = {kSuccessProbability},
       .make = [](Numbers p) { return Erase(GeometricDistribution(p[0])); },
       .is_discrete = true},
      {.name = "negative-binomial",
       .aliases = {"nbinom"},
       .summary = "The negative binomial distribution: successes before a given number of failures",
       .parameters = {kOpenSuccessProbability,
                      {"--failures", "number of failures, which need not be whole", kShape, 5,
                       false, "--size"}},
       .make = [](Numbers p) { return Erase(NegativeBinomialDistribution(p[0], p[1])); },
       .is_discrete = true},
  };
}

}  // namespace

std::span<const Family> Families() {
  static const std::vector<Family> families = AllFamilies();
  return families;
}

const Family* FindFamily(std::string_view name) {
  const auto is_named = [name](const Family& family) {
    return name == family.name || std::ranges::find(family.aliases, name) != family.aliases.end();
  };
  const auto found = std::ranges::find_if(Families(), is_named);
  return found == Families().end() ? nullptr : &*found;
}

std::vector<const char*> OtherNames(std::string_view name) {
  const Family* const family = FindFamily(name);
  if (family == nullptr) return {};
  std::vector<const char*> names = {family->name};
  names.insert(names.end(), family->aliases.begin(), family->aliases.end());
  std::erase_if(names, [name](const char* other) { return other == name; });
  return names;
}

}  // namespace qorvex::apps
