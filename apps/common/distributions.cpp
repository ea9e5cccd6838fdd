#include "apps/common/distributions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/full_precision.h"

namespace qorvex::apps {

namespace {

using Arguments = DistributionArguments;

template <class Result, class... Parameters, std::size_t... i>
Extended Apply(Result (*routine)(Parameters...), Arguments arguments, std::size_t first,
               std::index_sequence<i...>) {
  return routine(static_cast<Parameters>(arguments[(i + first) % sizeof...(Parameters)])...);
}

template <class Result, class... Parameters>
Extended Apply(Result (*routine)(Parameters...), Arguments arguments, std::size_t points) {
  return Apply(routine, arguments, sizeof...(Parameters) - points,
               std::index_sequence_for<Parameters...>());
}

// Calls a routine that takes its parameters first.
template <auto routine>
Extended Call(Arguments arguments) {
  return Apply(routine, arguments, 0);
}

// Calls a routine that takes its points first.
template <auto routine, std::size_t points = 1>
Extended CallPointFirst(Arguments arguments) {
  return Apply(routine, arguments, points);
}

// The overloads that take the ends of the support.
using FiveNumbers = Extended (*)(Extended, Extended, Extended, Extended, Extended);
using SixNumbers = Extended (*)(Extended, Extended, Extended, Extended, Extended, Extended);

namespace fp = full_precision;

#define QORVEX_FULL_PRECISION(Family, density)                                              \
  {                                                                                         \
    Call<fp::Family##density>, Call<fp::Family##Lower>, Call<fp::Family##Upper>,            \
        Call<fp::Family##LogLower>, Call<fp::Family##LogUpper>, Call<fp::Family##Quantile>, \
        Call<fp::Family##UpperQuantile>                                                     \
  }

// A beta distribution between two ends, which are the last two of its parameters.
struct BetaSupport {
  explicit BetaSupport(Arguments arguments)
      : lower(arguments[2]), width(arguments[3] - arguments[2]) {}
  Extended lower;
  Extended width;
};

template <auto routine>
Extended AtScaledPoint(Arguments arguments) {
  const BetaSupport support(arguments);
  return routine(arguments[0], arguments[1], (arguments[4] - support.lower) / support.width);
}

Extended ScaledDensity(Arguments arguments) {
  return AtScaledPoint<fp::BetaPdf>(arguments) / BetaSupport(arguments).width;
}

template <auto routine>
Extended ScaledQuantile(Arguments arguments) {
  const BetaSupport support(arguments);
  return support.lower + support.width * routine(arguments[0], arguments[1], arguments[4]);
}

Extended ScaledIncompleteGamma(Arguments arguments) {
  return IncompleteGamma(arguments[0], arguments[2] / arguments[1]);
}

Support PositiveAxis(Arguments) {
  return {.least = 0};
}

constexpr auto kShape = NumberKind::kShape;

std::vector<Distribution> AllDistributions() {
  const NumberParameter df = {"--df", "The degrees of freedom", NumberKind::kDegreesOfFreedom};
  return {
      {"normal",
       "The normal distribution",
       {kMean, kStdDev},
       false,
       QORVEX_FULL_PRECISION(Normal, Pdf),
       {CallPointFirst<NormalPDF>, Call<NormalDistLess>, Call<NormalDistGreater>,
        Call<NormalDistBetween>, Call<InvNormalDistLess>, Call<InvNormalDistGreater>,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          NormalPDFValues(a[0], a[1], a[2], a[3], n, xs, ys);
        }}},
      {"log-normal",
       "The log-normal distribution; mean and standard deviation of ln X",
       {kMean, kStdDev},
       false,
       QORVEX_FULL_PRECISION(LogNormal, Pdf),
       {CallPointFirst<LogNormalPDF>, Call<LogNormalLess>, Call<LogNormalGreater>,
        Call<LogNormalBetween>, Call<InvLogNormalLess>, Call<InvLogNormalGreater>,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          LogNormalPDFValues(a[0], a[1], a[2], a[3], n, xs, ys);
        }},
       PositiveAxis},
      {"exponential",
       "The exponential distribution",
       {{"--mean", "The mean, 1 / rate", NumberKind::kPositive}},
       false,
       QORVEX_FULL_PRECISION(Exponential, Pdf),
       {CallPointFirst<ExponentialPDF>, Call<ExponentialLess>, Call<ExponentialGreater>,
        Call<ExponentialBetween>, nullptr, nullptr,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          ExponentialPDFValues(a[0], a[1], a[2], n, xs, ys);
        }},
       PositiveAxis},
      {"gamma",
       "The gamma distribution",
       {{"--shape", "The shape", kShape}, kScale},
       false,
       QORVEX_FULL_PRECISION(Gamma, Pdf),
       {.less = ScaledIncompleteGamma},
       PositiveAxis},
      {"chi-square",
       "The chi-square distribution",
       {df},
       false,
       QORVEX_FULL_PRECISION(ChiSquare, Pdf),
       {CallPointFirst<ChiSquarePDF>, CallPointFirst<ChiSquareLess>,
        CallPointFirst<ChiSquareGreater>, CallPointFirst<ChiSquareBetween, 2>,
        Call<InvChiSquareLess>, Call<InvChiSquareGreater>,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          ChiSquarePDFValues(static_cast<std::uint32_t>(a[0]), a[1], a[2], n, xs, ys);
        }},
       PositiveAxis},
      {"student-t",
       "Student's t distribution",
       {df},
       false,
       QORVEX_FULL_PRECISION(StudentT, Pdf),
       {CallPointFirst<StudentTPDF>, CallPointFirst<StudentTLess>, CallPointFirst<StudentTGreater>,
        CallPointFirst<StudentTBetween, 2>, Call<InvStudentTLess>, Call<InvStudentTGreater>,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          StudentTPDFValues(static_cast<std::uint32_t>(a[0]), a[1], a[2], n, xs, ys);
        }}},
      {"f",
       "The F distribution",
       {{"--df1", "The degrees of freedom of the numerator", NumberKind::kDegreesOfFreedom},
        {"--df2", "The degrees of freedom of the denominator", NumberKind::kDegreesOfFreedom}},
       false,
       QORVEX_FULL_PRECISION(FDist, Pdf),
       {CallPointFirst<FDistPDF>, CallPointFirst<FDistLess>, CallPointFirst<FDistGreater>,
        CallPointFirst<FDistBetween, 2>, Call<InvFDistLess>, Call<InvFDistGreater>,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          FDistPDFValues(static_cast<std::uint32_t>(a[0]), static_cast<std::uint32_t>(a[1]), a[2],
                         a[3], n, xs, ys);
        }},
       PositiveAxis},
      {"beta",
       "The beta distribution, on [0, 1] or between two ends",
       {{"--a", "The first shape", kShape},
        {"--b", "The second shape", kShape},
        kLowerEnd,
        kUpperEnd},
       false,
       {ScaledDensity, AtScaledPoint<fp::BetaLower>, AtScaledPoint<fp::BetaUpper>,
        AtScaledPoint<fp::BetaLogLower>, AtScaledPoint<fp::BetaLogUpper>,
        ScaledQuantile<fp::BetaQuantile>, ScaledQuantile<fp::BetaUpperQuantile>},
       {CallPointFirst<static_cast<FiveNumbers>(BetaPDF)>,
        CallPointFirst<static_cast<FiveNumbers>(BetaDistLess)>,
        CallPointFirst<static_cast<FiveNumbers>(BetaDistGreater)>,
        CallPointFirst<static_cast<SixNumbers>(BetaDistBetween), 2>,
        Call<static_cast<FiveNumbers>(InvBetaDistLess)>,
        Call<static_cast<FiveNumbers>(InvBetaDistGreater)>,
        [](Arguments a, std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
          BetaPDFValues(a[0], a[1], a[2], a[3], a[4], a[5], n, xs, ys);
        }},
       [](Arguments a) { return Support{.least = a[2], .greatest = a[3]}; },
       [](Arguments a) { return WhatIsWrongWithEnds(a[2], a[3]); }},
      {"binomial",
       "The binomial distribution: successes in independent trials",
       {kSuccessProbability, {"--trials", "The number of trials", NumberKind::kCount}},
       true,
       QORVEX_FULL_PRECISION(Binomial, Pmf),
       {Call<BinomialEq>, Call<BinomialLess>, Call<BinomialGreater>, Call<BinomialBetween>}},
      {"hypergeometric",
       "The hypergeometric distribution: successes in a sample drawn without replacement",
       {{"--pop-size", "The size of the population", NumberKind::kCount},
        {"--sample-size", "The size of the sample", NumberKind::kCount},
        {"--successes", "The successes in the population", NumberKind::kCount}},
       true,
       QORVEX_FULL_PRECISION(HyperGeometric, Pmf),
       {Call<HyperGeometricEq>, Call<HyperGeometricLess>, Call<HyperGeometricGreater>,
        Call<HyperGeometricBetween>}},
      {"poisson",
       "The Poisson distribution",
       {kLambda},
       true,
       QORVEX_FULL_PRECISION(Poisson, Pmf),
       {Call<PoissonEq>, Call<PoissonLess>, Call<PoissonGreater>, Call<PoissonBetween>}},
  };
}

#undef QORVEX_FULL_PRECISION

}  // namespace

Extended ProbabilityBetween(const Distribution& distribution, DistributionArguments arguments) {
  std::vector<Extended> first(arguments.begin(), arguments.end());
  const Extended point = first.back();
  first.pop_back();
  std::vector<Extended> second = first;
  first.back() = std::min(first.back(), point);
  second.back() = std::max(second.back(), point);
  // Fewer than a count are at most the one before it.
  if (distribution.is_discrete && second.back() > first.back()) --second.back();

  // A difference of the tails on the side where they are small, or what both leave where the
  // median is between the points.
  constexpr Extended half = 0.5L;
  const FullPrecisionRoutines& routines = distribution.full_precision;
  const Extended lower = routines.lower(second);
  if (lower <= half) return lower - routines.lower(first);
  const Extended upper = routines.upper(first);
  if (upper <= half) return upper - routines.upper(second);
  return 1 - routines.lower(first) - routines.upper(second);
}

std::span<const Distribution> Distributions() {
  static const std::vector<Distribution> distributions = AllDistributions();
  return distributions;
}

}  // namespace qorvex::apps
