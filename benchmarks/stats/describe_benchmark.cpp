// All descriptive statistics, and the variance alone, compared with statistics libraries in long
// double.

#include <Eigen/Core>
#include <boost/math/statistics/univariate_statistics.hpp>
#include <cmath>
#include <gsl/gsl_sort_long_double.h>
#include <gsl/gsl_statistics_long_double.h>

#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/vector/building.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

using EigenArray = Eigen::Map<const Eigen::Array<Extended, Eigen::Dynamic, 1>>;

template <FloatElement T>
void RegisterVariance() {
  Compare<T>("SampleVariance", "ours", [](const TQorVector<T>& v) { return SampleVariance(v); });
  Compare<T>("SampleVariance", "loop", [](const TQorVector<T>& v) {
    Extended sum = 0;
    for (const T x : v) sum += static_cast<Extended>(x);
    const Extended mean = sum / static_cast<Extended>(v.size());
    Extended squares = 0;
    for (const T x : v) {
      const Extended difference = static_cast<Extended>(x) - mean;
      squares += difference * difference;
    }
    return squares / static_cast<Extended>(v.size() - 1);
  });
  Compare<T>("SampleVariance", "ExactSample", [](const TQorVector<T>& v) {
    ExactSample<2> sample;
    sample.Add(v);
    return sample.SampleVariance();
  });
}

[[maybe_unused]] const bool registered = [] {
  Compare<Extended>("DescriptiveStats", "ours", [](const TQorFloatVector& v) {
    DescriptiveStats stats;
    stats.SetValues(v);
    return stats.Results().kurtosis;
  });
  // The same figures except the mode, as a user of GSL would compute them.
  Compare<Extended>("DescriptiveStats", "GSL", [](const TQorFloatVector& v) {
    TQorFloatVector sorted = CopyVector(v);
    gsl_sort_long_double(sorted.data(), 1, sorted.size());
    const double mean = gsl_stats_long_double_mean(v.data(), 1, v.size());
    const double sd = gsl_stats_long_double_sd_m(v.data(), 1, v.size(), mean);
    return mean + sd + gsl_stats_long_double_tss_m(v.data(), 1, v.size(), 0) +
           gsl_stats_long_double_median_from_sorted_data(sorted.data(), 1, sorted.size()) +
           gsl_stats_long_double_quantile_from_sorted_data(sorted.data(), 1, sorted.size(), 0.25) +
           gsl_stats_long_double_quantile_from_sorted_data(sorted.data(), 1, sorted.size(), 0.75) +
           gsl_stats_long_double_skew_m_sd(v.data(), 1, v.size(), mean, sd) +
           gsl_stats_long_double_kurtosis_m_sd(v.data(), 1, v.size(), mean, sd);
  });
  Compare<Extended>("DescriptiveStats", "Boost", [](const TQorFloatVector& v) {
    namespace statistics = boost::math::statistics;
    TQorFloatVector copy = CopyVector(v);
    const auto [mean, variance, skewness, kurtosis] =
        statistics::first_four_moments(copy.begin(), copy.end());
    return mean + variance + skewness + kurtosis +
           statistics::interquartile_range(copy.begin(), copy.end()) +
           statistics::median(copy.begin(), copy.end());
  });

  RegisterVariance<Extended>();
  RegisterVariance<double>();
  RegisterVariance<float>();
  Compare<Extended>("SampleVariance", "GSL", [](const TQorFloatVector& v) {
    return gsl_stats_long_double_variance(v.data(), 1, v.size());
  });
  Compare<Extended>("SampleVariance", "Boost", [](const TQorFloatVector& v) {
    return boost::math::statistics::sample_variance(v.begin(), v.end());
  });
  Compare<Extended>("SampleVariance", "Eigen", [](const TQorFloatVector& v) {
    const EigenArray x(v.data(), static_cast<Eigen::Index>(v.size()));
    return (x - x.mean()).square().sum() / static_cast<Extended>(v.size() - 1);
  });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
