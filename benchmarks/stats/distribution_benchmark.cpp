// What one figure of each distribution costs, a table of a hundred thousand densities, and a curve
// of a thousand points. Ours are the classes; "classic" are the routines of QorvexStatistics. Boost
// computes in long double, GSL in double.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <boost/math/distributions.hpp>
#include <cmath>
#include <cstdint>
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_randist.h>
#include <random>
#include <string>
#include <vector>

#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/distributions/distributions.h"

namespace qorvex::benchmarks {
namespace {

namespace bm = boost::math;

using Routine = Extended (*)(Extended);

template <class D>
typename D::Point ToPoint(Extended x) {
  return static_cast<typename D::Point>(x);
}

// The figures of a distribution with given parameters; null where the contestant has none.
struct Figures {
  Routine density = nullptr;
  Routine lower = nullptr;
  Routine upper = nullptr;
  Routine quantile = nullptr;
};

// Each call constructs the distribution, as the classic routines and the peers do.
#define QORVEX_CLASS(...)                                                                 \
  Figures {                                                                               \
    [](Extended x) { return Density(__VA_ARGS__, ToPoint<decltype(__VA_ARGS__)>(x)); },   \
        [](Extended x) { return Lower(__VA_ARGS__, ToPoint<decltype(__VA_ARGS__)>(x)); }, \
        [](Extended x) { return Upper(__VA_ARGS__, ToPoint<decltype(__VA_ARGS__)>(x)); }, \
        [](Extended p) { return static_cast<Extended>(Quantile(__VA_ARGS__, p)); }        \
  }

#define QORVEX_PARAMETERS_FIRST(Family, Distribution, ...)                 \
  Figures {                                                                \
    [](Extended x) { return Family##PDF(x, __VA_ARGS__); },                \
        [](Extended x) { return Distribution##Less(__VA_ARGS__, x); },     \
        [](Extended x) { return Distribution##Greater(__VA_ARGS__, x); },  \
        [](Extended p) { return Inv##Distribution##Less(__VA_ARGS__, p); } \
  }

#define QORVEX_POINT_FIRST(Family, Distribution, ...)                      \
  Figures {                                                                \
    [](Extended x) { return Family##PDF(x, __VA_ARGS__); },                \
        [](Extended x) { return Distribution##Less(x, __VA_ARGS__); },     \
        [](Extended x) { return Distribution##Greater(x, __VA_ARGS__); },  \
        [](Extended p) { return Inv##Distribution##Less(__VA_ARGS__, p); } \
  }

#define QORVEX_COUNTS(Family, ...)                                                             \
  Figures {                                                                                    \
    [](Extended k) { return Family##Eq(__VA_ARGS__, static_cast<std::uint32_t>(k)); },         \
        [](Extended k) { return Family##Less(__VA_ARGS__, static_cast<std::uint32_t>(k)); },   \
        [](Extended k) { return Family##Greater(__VA_ARGS__, static_cast<std::uint32_t>(k)); } \
  }

#define QORVEX_BOOST(...)                                               \
  Figures {                                                             \
    [](Extended x) { return pdf(bm::__VA_ARGS__, x); },                 \
        [](Extended x) { return cdf(bm::__VA_ARGS__, x); },             \
        [](Extended x) { return cdf(complement(bm::__VA_ARGS__, x)); }, \
        [](Extended p) { return quantile(bm::__VA_ARGS__, p); }         \
  }

#define QORVEX_GSL_PROBABILITIES(family, Point, ...)                     \
  [](Extended x) -> Extended {                                           \
    return gsl_ran_##family##_pdf(static_cast<Point>(x), __VA_ARGS__);   \
  },                                                                     \
      [](Extended x) -> Extended {                                       \
        return gsl_cdf_##family##_P(static_cast<Point>(x), __VA_ARGS__); \
      },                                                                 \
      [](Extended x) -> Extended {                                       \
        return gsl_cdf_##family##_Q(static_cast<Point>(x), __VA_ARGS__); \
      }

#define QORVEX_GSL(family, ...)                                                         \
  Figures {                                                                             \
    QORVEX_GSL_PROBABILITIES(family, double, __VA_ARGS__), [](Extended p) -> Extended { \
      return gsl_cdf_##family##_Pinv(static_cast<double>(p), __VA_ARGS__);              \
    }                                                                                   \
  }

#define QORVEX_GSL_DISCRETE(family, ...)                    \
  Figures {                                                 \
    QORVEX_GSL_PROBABILITIES(family, unsigned, __VA_ARGS__) \
  }

std::vector<Extended> Probabilities() {
  std::mt19937_64 engine(7);
  std::uniform_real_distribution<Extended> uniform(0.001L, 0.999L);
  std::vector<Extended> probabilities(1000);
  for (Extended& p : probabilities) p = uniform(engine);
  return probabilities;
}

void Register(const std::string& name, Routine routine, const std::vector<Extended>& arguments) {
  if (routine == nullptr) return;
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    for (auto _ : state) {
      Extended sum = 0;
      for (const Extended x : arguments) sum += routine(x);
      benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(arguments.size()));
  });
}

struct Contestant {
  const char* who;
  Figures figures;
};

// Every figure at points that are spread as the distribution is; the first contestant is ours.
void CompareFigures(const std::string& family, const std::vector<Contestant>& contestants) {
  const std::vector<Extended> probabilities = Probabilities();
  std::vector<Extended> points(probabilities.size());
  std::ranges::transform(probabilities, points.begin(), contestants[0].figures.quantile);
  for (const auto& [who, figures] : contestants) {
    const auto name = [&, who = who](const char* figure) {
      return family + ' ' + figure + "/Float/" + who + "/1000";
    };
    Register(name("density"), figures.density, points);
    Register(name("lower"), figures.lower, points);
    Register(name("upper"), figures.upper, points);
    Register(name("quantile"), figures.quantile, probabilities);
  }
}

using TableRoutine = void (*)(std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys);

// A table of densities from 0.01 to 8 beside loops over the densities of the peers.
void CompareTables(const std::string& family, TableRoutine ours,
                   const std::vector<Contestant>& peers) {
  constexpr std::int32_t n = 99'999;
  const auto count_items = [](benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * (n + 1));
  };
  const auto name = [&](const std::string& who) {
    return family + " table/Float/" + who + "/100000";
  };
  benchmark::RegisterBenchmark(name("ours").c_str(), [=](benchmark::State& state) {
    TQorFloatVector xs;
    TQorFloatVector ys;
    for (auto _ : state) {
      ours(n, xs, ys);
      benchmark::DoNotOptimize(ys.data());
    }
    count_items(state);
  });
  for (const auto& [who, figures] : peers) {
    benchmark::RegisterBenchmark(name(who).c_str(),
                                 [=, density = figures.density](benchmark::State& state) {
                                   std::vector<Extended> xs(n + 1);
                                   std::vector<Extended> ys(n + 1);
                                   for (auto _ : state) {
                                     for (std::int32_t i = 0; i <= n; ++i) {
                                       const auto index = static_cast<std::size_t>(i);
                                       xs[index] = 0.01L + static_cast<Extended>(i) * (7.99L / n);
                                       ys[index] = density(xs[index]);
                                     }
                                     benchmark::DoNotOptimize(ys.data());
                                   }
                                   count_items(state);
                                 });
  }
}

// A curve of a thousand lower probabilities from one object, and from one made for each point.
template <class Make>
void CompareCurves(const std::string& family, Make make) {
  using D = decltype(make());
  std::vector<typename D::Point> points;
  for (const Extended p : Probabilities()) points.push_back(Quantile(make(), p));
  const auto add = [&](const char* who, auto fill) {
    benchmark::RegisterBenchmark(
        (family + " curve/Float/" + who + "/1000").c_str(), [=](benchmark::State& state) {
          std::vector<Extended> out(points.size());
          for (auto _ : state) {
            fill(points, out);
            benchmark::DoNotOptimize(out.data());
          }
          state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(points.size()));
        });
  };
  add("ours", [=](const auto& in, auto& out) { Evaluate(make(), Lower<D>, in, out); });
  add("an object a point", [=](const auto& in, auto& out) {
    std::ranges::transform(in, out.begin(), [=](auto x) { return Lower(make(), x); });
  });
}

[[maybe_unused]] const bool registered = [] {
  const Figures boost_normal = QORVEX_BOOST(normal_distribution<Extended>(0, 1));
  const Figures gsl_normal = QORVEX_GSL(gaussian, 1);
  CompareFigures("normal", {{"ours", QORVEX_CLASS(NormalDistribution(0, 1))},
                            {"classic", QORVEX_PARAMETERS_FIRST(Normal, NormalDist, 0, 1)},
                            {"Boost", boost_normal},
                            {"GSL", gsl_normal}});
  CompareFigures("log-normal", {{"ours", QORVEX_CLASS(LogNormalDistribution(0.5L, 2))},
                                {"classic", QORVEX_PARAMETERS_FIRST(LogNormal, LogNormal, 0.5L, 2)},
                                {"Boost", QORVEX_BOOST(lognormal_distribution<Extended>(0.5L, 2))},
                                {"GSL", QORVEX_GSL(lognormal, 0.5, 2)}});
  CompareFigures("exponential", {{"ours", QORVEX_CLASS(ExponentialDistribution(2))},
                                 {"classic",
                                  {[](Extended x) { return ExponentialPDF(x, 2); },
                                   [](Extended x) { return ExponentialLess(2, x); },
                                   [](Extended x) { return ExponentialGreater(2, x); }}},
                                 {"Boost", QORVEX_BOOST(exponential_distribution<Extended>(0.5L))},
                                 {"GSL", QORVEX_GSL(exponential, 2)}});
  CompareFigures("gamma",
                 {{"ours", QORVEX_CLASS(GammaDistribution(3.5L, 1))},
                  {"classic", {.lower = [](Extended x) { return IncompleteGamma(3.5L, x); }}},
                  {"Boost", QORVEX_BOOST(gamma_distribution<Extended>(3.5L, 1))},
                  {"GSL", QORVEX_GSL(gamma, 3.5, 1)}});
  const Figures boost_chi_square = QORVEX_BOOST(chi_squared_distribution<Extended>(10));
  const Figures gsl_chi_square = QORVEX_GSL(chisq, 10);
  CompareFigures("chi-square", {{"ours", QORVEX_CLASS(ChiSquareDistribution(10))},
                                {"classic", QORVEX_POINT_FIRST(ChiSquare, ChiSquare, 10)},
                                {"Boost", boost_chi_square},
                                {"GSL", gsl_chi_square}});
  CompareFigures("Student t", {{"ours", QORVEX_CLASS(StudentTDistribution(7))},
                               {"classic", QORVEX_POINT_FIRST(StudentT, StudentT, 7)},
                               {"Boost", QORVEX_BOOST(students_t_distribution<Extended>(7))},
                               {"GSL", QORVEX_GSL(tdist, 7)}});
  CompareFigures("F", {{"ours", QORVEX_CLASS(FDistribution(5, 12))},
                       {"classic", QORVEX_POINT_FIRST(FDist, FDist, 5, 12)},
                       {"Boost", QORVEX_BOOST(fisher_f_distribution<Extended>(5, 12))},
                       {"GSL", QORVEX_GSL(fdist, 5, 12)}});
  CompareFigures("beta", {{"ours", QORVEX_CLASS(BetaDistribution(2.5L, 1.5L))},
                          {"classic", QORVEX_POINT_FIRST(Beta, BetaDist, 2.5L, 1.5L)},
                          {"Boost", QORVEX_BOOST(beta_distribution<Extended>(2.5L, 1.5L))},
                          {"GSL", QORVEX_GSL(beta, 2.5, 1.5)}});
  CompareFigures("binomial", {{"ours", QORVEX_CLASS(BinomialDistribution(0.3L, 100))},
                              {"classic", QORVEX_COUNTS(Binomial, 0.3L, 100)},
                              {"Boost", QORVEX_BOOST(binomial_distribution<Extended>(100, 0.3L))},
                              {"GSL", QORVEX_GSL_DISCRETE(binomial, 0.3, 100)}});
  CompareFigures("hypergeometric",
                 {{"ours", QORVEX_CLASS(HypergeometricDistribution(500, 60, 100))},
                  {"classic", QORVEX_COUNTS(HyperGeometric, 500, 60, 100)},
                  {"Boost", QORVEX_BOOST(hypergeometric_distribution<Extended>(100, 60, 500))},
                  {"GSL", QORVEX_GSL_DISCRETE(hypergeometric, 100, 400, 60)}});
  CompareFigures("Poisson", {{"ours", QORVEX_CLASS(PoissonDistribution(12.5L))},
                             {"classic", QORVEX_COUNTS(Poisson, 12.5L)},
                             {"Boost", QORVEX_BOOST(poisson_distribution<Extended>(12.5L))},
                             {"GSL", QORVEX_GSL_DISCRETE(poisson, 12.5)}});

  CompareFigures("uniform", {{"ours", QORVEX_CLASS(UniformDistribution(-1, 3))},
                             {"Boost", QORVEX_BOOST(uniform_distribution<Extended>(-1, 3))},
                             {"GSL", QORVEX_GSL(flat, -1, 3)}});
  CompareFigures("Weibull", {{"ours", QORVEX_CLASS(WeibullDistribution(2.5L, 3))},
                             {"Boost", QORVEX_BOOST(weibull_distribution<Extended>(2.5L, 3))},
                             {"GSL", QORVEX_GSL(weibull, 3, 2.5)}});
  CompareFigures("Gumbel", {{"ours", QORVEX_CLASS(GumbelDistribution(1, 2))},
                            {"Boost", QORVEX_BOOST(extreme_value_distribution<Extended>(1, 2))}});
  CompareFigures("logistic", {{"ours", QORVEX_CLASS(LogisticDistribution(1, 2))},
                              {"Boost", QORVEX_BOOST(logistic_distribution<Extended>(1, 2))}});
  CompareFigures("Cauchy", {{"ours", QORVEX_CLASS(CauchyDistribution(1, 2))},
                            {"Boost", QORVEX_BOOST(cauchy_distribution<Extended>(1, 2))}});
  CompareFigures("von Mises", {{"ours", QORVEX_CLASS(VonMisesDistribution(2))}});
  using GeneralisedInverseGaussian = GeneralisedInverseGaussianDistribution;
  CompareFigures("generalised inverse Gaussian",
                 {{"ours", QORVEX_CLASS(GeneralisedInverseGaussian(2, 0.5L))}});
  CompareFigures("inverse Gaussian",
                 {{"ours", QORVEX_CLASS(GeneralisedInverseGaussian::InverseGaussian(3, 7))},
                  {"Boost", QORVEX_BOOST(inverse_gaussian_distribution<Extended>(3, 7))}});
  CompareFigures("geometric", {{"ours", QORVEX_CLASS(GeometricDistribution(0.3L))},
                               {"Boost", QORVEX_BOOST(geometric_distribution<Extended>(0.3L))}});
  CompareFigures("negative binomial",
                 {{"ours", QORVEX_CLASS(NegativeBinomialDistribution(0.6L, 3.5L))},
                  {"Boost", QORVEX_BOOST(negative_binomial_distribution<Extended>(3.5L, 0.4L))}});

  CompareCurves("gamma", [] { return GammaDistribution(3.7L); });
  CompareCurves("beta", [] { return BetaDistribution(2.7L, 1.6L); });
  CompareCurves("F", [] { return FDistribution(5, 12); });
  CompareCurves("Student t", [] { return StudentTDistribution(7.3L); });
  CompareTables("normal",
                [](std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
                  NormalPDFValues(0, 1, 0.01L, 8, n, xs, ys);
                },
                {{"Boost", boost_normal}, {"GSL", gsl_normal}});
  CompareTables("chi-square",
                [](std::int32_t n, TQorFloatVector& xs, TQorFloatVector& ys) {
                  ChiSquarePDFValues(10, 0.01L, 8, n, xs, ys);
                },
                {{"Boost", boost_chi_square}, {"GSL", gsl_chi_square}});
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
