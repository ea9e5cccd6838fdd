// Random variates, compared with the distributions of the standard library in long double and of
// GSL in double. All draw from the same generator. Objects of the standard library are prepared
// once for all draws; our routines and those of GSL prepare every draw. Our samplers are prepared
// once, too; "single calls" are those of the routine.

#include <cstdint>
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include "qorvex/random/QorvexRandom.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// Marsaglia's xorshift with Vigna's multiplier: so fast that the benchmark measures the
// distributions.
class Generator {
 public:
  using result_type = std::uint64_t;
  static constexpr result_type min() { return 0; }
  static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
  result_type operator()() {
    state_ ^= state_ >> 12;
    state_ ^= state_ << 25;
    state_ ^= state_ >> 27;
    return state_ * 2685821657736338717U;
  }

 private:
  std::uint64_t state_ = 88172645463325252U;
};

Generator generator;

Extended Uniform() {
  return UniformValue(generator());
}

// The generator as a GSL generator.
const gsl_rng* GslGenerator() {
  static const gsl_rng_type type = {
      "xorshift",
      std::numeric_limits<std::uint32_t>::max(),
      0,
      0,
      [](void*, unsigned long) {},
      [](void*) -> unsigned long { return generator() >> 32; },
      [](void*) -> double { return static_cast<double>(generator() >> 11) * 0x1p-53; }};
  static gsl_rng instance{&type, nullptr};
  return &instance;
}

constexpr std::size_t kDraws = 1000;

// Registers a benchmark that calls draw() a thousand times per iteration.
template <class Draw>
void Register(const std::string& variate, const std::string& parameters, const std::string& who,
              Draw draw) {
  const std::string name = variate + "/" + parameters + "/" + who + "/" + std::to_string(kDraws);
  benchmark::RegisterBenchmark(name.c_str(), [draw](benchmark::State& state) mutable {
    for (auto _ : state) {
      for (std::size_t i = 0; i < kDraws; ++i) benchmark::DoNotOptimize(draw());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kDraws));
  });
}

// Registers a benchmark of work(vector), which fills a thousand elements.
template <class Work>
void RegisterWork(const std::string& variate, const std::string& parameters, const std::string& who,
                  Work work) {
  const std::string name = variate + "/" + parameters + "/" + who + "/" + std::to_string(kDraws);
  benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) {
    auto variates = TQorFloatVector::ForOverwrite(kDraws);
    for (auto _ : state) {
      work(variates);
      benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kDraws));
  });
}

// Registers benchmarks of fill(vector), and of calling draw() for each element.
template <class Fill, class Draw>
void RegisterFill(const std::string& variate, const std::string& parameters, Fill fill, Draw draw) {
  RegisterWork(variate, parameters, "ours", fill);
  RegisterWork(variate, parameters, "single calls", [draw](TQorFloatVector& variates) {
    for (Extended& x : variates) x = draw();
  });
}

template <class Distribution>
void RegisterStd(const std::string& variate, const std::string& parameters,
                 Distribution distribution) {
  Register(variate, parameters, "std",
           [distribution]() mutable { return distribution(generator); });
}

// Parameters that reach the different methods, in the order of each routine.
[[maybe_unused]] const bool registered = [] {
  const gsl_rng* const gsl = GslGenerator();

  Register("Uniform", "-", "ours", Uniform);
  RegisterStd("Uniform", "-", std::uniform_real_distribution<Extended>());
  Register("Uniform", "-", "GSL", [gsl] { return gsl_rng_uniform(gsl); });
  RegisterFill(
      "FillUniform", "-", [](TQorFloatVector& v) { FillUniform(v, Uniform); }, Uniform);

  Register("Random_Normal", "-", "ours", [] { return Random_Normal(Uniform); });
  Register("Random_Normal", "-", "ours, from a lambda",
           [] { return Random_Normal([] { return Uniform(); }); });
  RegisterStd("Random_Normal", "-", std::normal_distribution<Extended>());
  Register("Random_Normal", "-", "GSL ratio method",
           [gsl] { return gsl_ran_gaussian_ratio_method(gsl, 1); });
  Register("Random_Normal", "-", "GSL ziggurat",
           [gsl] { return gsl_ran_gaussian_ziggurat(gsl, 1); });
  RegisterFill(
      "FillNormal", "-", [](TQorFloatVector& v) { FillNormal(v, Uniform); },
      [] { return Random_Normal(Uniform); });
  const auto register_sources = [](const std::string& variate, auto fill) {
    static RandomStream stream(1);
    static std::mt19937_64 standard;
    RegisterWork(variate, "by source", "ours", [fill](TQorFloatVector& v) { fill(v, stream); });
    RegisterWork(variate, "by source", "std::mt19937_64",
                 [fill](TQorFloatVector& v) { fill(v, standard); });
    RegisterWork(variate, "by source", "ClassicRandom",
                 [fill](TQorFloatVector& v) { fill(v, ClassicRandom); });
  };
  register_sources("FillUniform", [](auto& v, auto& source) { FillUniform(v, source); });
  register_sources("FillNormal", [](auto& v, auto& source) { FillNormal(v, source); });

  Register("Random_Exponential", "-", "ours", [] { return Random_Exponential(Uniform); });
  RegisterStd("Random_Exponential", "-", std::exponential_distribution<Extended>());
  Register("Random_Exponential", "-", "GSL", [gsl] { return gsl_ran_exponential(gsl, 1); });
  RegisterFill(
      "FillExponential", "-", [](TQorFloatVector& v) { FillExponential(v, Uniform); },
      [] { return Random_Exponential(Uniform); });

  for (const double shape : {0.5, 3.7, 50.0}) {
    const std::string parameters = std::to_string(shape).substr(0, 4);
    Register("Random_Gamma", parameters, "ours", [shape] { return Random_Gamma(shape, Uniform); });
    RegisterStd("Random_Gamma", parameters, std::gamma_distribution<Extended>(shape));
    Register("Random_Gamma", parameters, "GSL",
             [gsl, shape] { return gsl_ran_gamma(gsl, shape, 1); });
    RegisterFill(
        "FillGamma", parameters, [shape](TQorFloatVector& v) { FillGamma(v, shape, Uniform); },
        [shape] { return Random_Gamma(shape, Uniform); });
  }

  const auto register_sampler = [](const std::string& variate, const std::string& parameters,
                                   auto sampler, auto distribution, auto routine) {
    Register(variate, parameters, "ours", [sampler] { return sampler(Uniform); });
    if constexpr (requires { distribution(generator); })
      RegisterStd(variate, parameters, distribution);
    Register(variate, parameters, "single calls", routine);
  };
  const struct {
  } no_peer;
  register_sampler("GammaSampler", "0.5", GammaSampler(0.5L),
                   std::gamma_distribution<Extended>(0.5L),
                   [] { return Random_Gamma(0.5L, Uniform); });
  register_sampler("StudentTSampler", "5", StudentTSampler(5),
                   std::student_t_distribution<Extended>(5), [] { return Random_T(5, Uniform); });
  register_sampler("PoissonSampler", "5", PoissonSampler(5),
                   std::poisson_distribution<std::int32_t>(5),
                   [] { return Random_Poisson(5, Uniform); });
  register_sampler("VonMisesSampler", "2", VonMisesSampler(2), no_peer,
                   [] { return Random_von_Mises(2, Uniform); });
  register_sampler("WeibullSampler", "1.5", WeibullSampler(1.5L),
                   std::weibull_distribution<Extended>(1.5L),
                   [] { return Random_Weibull(1.5L, Uniform); });
  register_sampler("LogNormalSampler", "2, 1.5", LogNormalSampler(2, 1.5L),
                   std::lognormal_distribution<Extended>(0.69L, 0.9L),
                   [] { return Random_LogNormal(2, 1.5L, Uniform); });
  register_sampler("BetaSampler", "2.5, 4", BetaSampler(2.5L, 4), no_peer,
                   [] { return Random_Beta(2.5L, 4, Uniform); });
  register_sampler("InverseGaussianSampler", "2, 0.5", InverseGaussianSampler(2, 0.5L), no_peer,
                   [] { return Random_Inv_Gauss(2, 0.5L, Uniform); });
  register_sampler("BinomialSampler", "100, 0.4", BinomialSampler(100, 0.4L),
                   std::binomial_distribution<std::int32_t>(100, 0.4),
                   [] { return Random_Binomial2(100, 0.4L, Uniform); });
  register_sampler("NegativeBinomialSampler", "3.5, 0.4", NegativeBinomialSampler(3.5L, 0.4L),
                   no_peer, [] { return Random_Neg_Binomial(3.5L, 0.4L, Uniform); });

  Register("Random_ChiSq", "7", "ours", [] { return Random_ChiSq(7, Uniform); });
  RegisterStd("Random_ChiSq", "7", std::chi_squared_distribution<Extended>(7));
  Register("Random_ChiSq", "7", "GSL", [gsl] { return gsl_ran_chisq(gsl, 7); });

  Register("Random_Weibull", "1.5", "ours", [] { return Random_Weibull(1.5L, Uniform); });
  RegisterStd("Random_Weibull", "1.5", std::weibull_distribution<Extended>(1.5L));
  Register("Random_Weibull", "1.5", "GSL", [gsl] { return gsl_ran_weibull(gsl, 1, 1.5); });

  Register("Random_Cauchy", "-", "ours", [] { return Random_Cauchy(Uniform); });
  RegisterStd("Random_Cauchy", "-", std::cauchy_distribution<Extended>());
  Register("Random_Cauchy", "-", "GSL", [gsl] { return gsl_ran_cauchy(gsl, 1); });

  Register("Random_T", "5", "ours", [] { return Random_T(5, Uniform); });
  RegisterStd("Random_T", "5", std::student_t_distribution<Extended>(5));
  Register("Random_T", "5", "GSL", [gsl] { return gsl_ran_tdist(gsl, 5); });

  Register("Random_LogNormal", "2, 1.5", "ours", [] { return Random_LogNormal(2, 1.5L, Uniform); });
  RegisterStd("Random_LogNormal", "2, 1.5", std::lognormal_distribution<Extended>(0.69L, 0.9L));
  Register("Random_LogNormal", "2, 1.5", "GSL",
           [gsl] { return gsl_ran_lognormal(gsl, 0.69, 0.9); });

  const auto beta = [gsl](const std::string& parameters, double a, double b) {
    Register("Random_Beta", parameters, "ours", [a, b] { return Random_Beta(a, b, Uniform); });
    Register("Random_Beta", parameters, "GSL", [gsl, a, b] { return gsl_ran_beta(gsl, a, b); });
  };
  beta("0.5, 0.7", 0.5, 0.7);
  beta("2.5, 4", 2.5, 4);

  // Neither peer has these.
  Register("Random_Inv_Gauss", "2, 0.5", "ours", [] { return Random_Inv_Gauss(2, 0.5L, Uniform); });
  Register("Random_von_Mises", "0.4", "ours", [] { return Random_von_Mises(0.4L, Uniform); });
  Register("Random_von_Mises", "2", "ours", [] { return Random_von_Mises(2, Uniform); });

  const auto binomial = [gsl](const std::string& parameters, std::int32_t n, double p) {
    Register("Random_Binomial1", parameters, "ours",
             [n, p] { return Random_Binomial1(n, p, Uniform); });
    Register("Random_Binomial2", parameters, "ours",
             [n, p] { return Random_Binomial2(n, p, Uniform); });
    for (const char* const variate : {"Random_Binomial1", "Random_Binomial2"}) {
      RegisterStd(variate, parameters, std::binomial_distribution<std::int32_t>(n, p));
      Register(variate, parameters, "GSL",
               [gsl, n, p] { return gsl_ran_binomial(gsl, p, static_cast<unsigned>(n)); });
    }
  };
  binomial("20, 0.3", 20, 0.3);
  binomial("100, 0.4", 100, 0.4);
  binomial("1000000, 0.25", 1'000'000, 0.25);

  Register("Random_Neg_Binomial", "3.5, 0.4", "ours",
           [] { return Random_Neg_Binomial(3.5L, 0.4L, Uniform); });
  Register("Random_Neg_Binomial", "3.5, 0.4", "GSL",
           [gsl] { return gsl_ran_negative_binomial(gsl, 0.6, 3.5); });

  for (const double mu : {5.0, 50.0, 1e6}) {
    const std::string parameters = std::to_string(static_cast<int>(mu));
    Register("Random_Poisson", parameters, "ours", [mu] { return Random_Poisson(mu, Uniform); });
    RegisterStd("Random_Poisson", parameters, std::poisson_distribution<std::int32_t>(mu));
    Register("Random_Poisson", parameters, "GSL", [gsl, mu] { return gsl_ran_poisson(gsl, mu); });
  }

  const auto multivariate = std::make_shared<std::pair<TQorFloatVector, TQorFloatVector>>(
      TQorFloatVector{1, 2, 3}, TQorFloatVector{4, 1, 3, 0.5L, 1, 2});
  Register("Random_MVNorm", "3 components", "ours",
           [multivariate, factor = TQorFloatVector(), variate = TQorFloatVector(),
            error = std::int32_t()]() mutable {
             Random_MVNorm(multivariate->first, multivariate->second, factor, variate, error,
                           Uniform);
             return variate[0];
           });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
