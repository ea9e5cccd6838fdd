// What a test of hypotheses costs from the data to p, compared with Boost, GSL and the library of
// R. None of them has the other tests; scripts/inference_times.R times those of R itself.

#include <benchmark/benchmark.h>
#include <boost/math/statistics/t_test.hpp>
#include <cmath>
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_statistics_long_double.h>
#include <string>
#include <vector>

#include "qorvex/stats/distributions/uniform.h"
#include "qorvex/stats/inference/inference.h"

#define MATHLIB_STANDALONE
#include <Rmath.h>

namespace qorvex::benchmarks {
namespace {

using Values = std::vector<Extended>;

// Distinct values between 0 and 1 in no order.
Values Scattered(int n, int start) {
  Values values;
  for (int i = start; i < start + n; ++i)
    values.push_back(static_cast<Extended>(i * 7919 % 8191) / 8192);
  return values;
}

template <class Work>
void Register(const std::string& routine, const std::string& who, int n, Work work) {
  const std::string name = routine + "/Float/" + who + "/" + std::to_string(n);
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    const Values first = Scattered(n, 0);
    const Values second = Scattered(n, n);
    for (auto _ : state) benchmark::DoNotOptimize(work(first, second));
    state.SetItemsProcessed(state.iterations());
  });
}

// As gsl_stats_ttest and a tail.
Extended GslTTest(const Values& x, const Values&) {
  const auto n = static_cast<double>(x.size());
  const double mean = gsl_stats_long_double_mean(x.data(), 1, x.size());
  const double sd = gsl_stats_long_double_sd_m(x.data(), 1, x.size(), mean);
  return 2 * gsl_cdf_tdist_Q(std::fabs(mean - 0.45) / sd * std::sqrt(n), n - 1);
}

[[maybe_unused]] const bool registered = [] {
  for (const int n : {10, 100, 5000}) {
    Register("OneSampleTTest", "ours", n,
             [](const Values& x, const Values&) { return OneSampleTTest(x, 0.45L).p; });
    Register("OneSampleTTest", "Boost", n, [](const Values& x, const Values&) {
      return boost::math::statistics::one_sample_t_test(x, 0.45L).second;
    });
    Register("OneSampleTTest", "GSL", n, GslTTest);
    Register("ShapiroWilkTest", "ours", n,
             [](const Values& x, const Values&) { return ShapiroWilkTest(x).p; });
  }
  for (const int n : {10, 50}) {
    Register("MannWhitneyTest", "ours", n,
             [](const Values& x, const Values& y) { return MannWhitneyTest(x, y).p; });
    Register("WilcoxonSignedRankTest", "ours", n,
             [](const Values& x, const Values&) { return WilcoxonSignedRankTest(x, 0.4L).p; });
  }
  for (const int n : {10, 100, 1000, 5000}) {
    Register("KolmogorovSmirnovTest", "ours", n, [](const Values& x, const Values&) {
      return KolmogorovSmirnovTest(x, UniformDistribution(0, 1.06L)).p;
    });
    Register("KolmogorovSmirnovTest two samples", "ours", n,
             [](const Values& x, const Values& y) { return KolmogorovSmirnovTest(x, y).p; });
  }
  Register("BinomialTest", "ours", 925,
           [](const Values&, const Values&) { return BinomialTest(682, 925, 0.75L).p; });
  // As R's binom.test does it.
  Register("BinomialTest", "R", 925, [](const Values&, const Values&) {
    const double limit = dbinom(682, 925, 0.75, 0) * (1 + 1e-7);
    double unlikely = 0;
    for (double k = 694; k <= 925; ++k) unlikely += dbinom(k, 925, 0.75, 0) <= limit ? 1 : 0;
    return pbinom(682, 925, 0.75, 1, 0) + pbinom(925 - unlikely, 925, 0.75, 0, 0);
  });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
