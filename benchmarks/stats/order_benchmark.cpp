// Order statistics, correlations and weighted figures, compared with plain loops and with GSL,
// Boost and Eigen in long double where they have it.

#include <Eigen/Core>
#include <boost/math/statistics/bivariate_statistics.hpp>
#include <boost/math/statistics/univariate_statistics.hpp>
#include <cmath>
#include <gsl/gsl_histogram.h>
#include <gsl/gsl_statistics_double.h>
#include <gsl/gsl_statistics_long_double.h>
#include <vector>

#include "qorvex/base/comparisons.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/exact/exact_pairs.h"
#include "qorvex/stats/exact/weighted.h"
#include "qorvex/stats/exact/weighted_quantile.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// Positive weights of the length of a sample.
std::span<const Extended> Weights(std::size_t n) {
  static const TQorFloatVector weights = [] {
    auto absolute = Sample<Extended>(1'000'000, 77);
    for (Extended& weight : absolute) weight = std::fabs(weight);
    return absolute;
  }();
  return {weights.data(), n};
}

constexpr std::size_t kColumns = 5;

// The sample as columns of equal length.
std::vector<std::span<const Extended>> Columns(const TQorFloatVector& v) {
  std::vector<std::span<const Extended>> columns;
  const std::size_t length = v.size() / kColumns;
  for (std::size_t i = 0; i < kColumns; ++i) columns.emplace_back(v.data() + i * length, length);
  return columns;
}

TQorFloatVector SortedSample(std::size_t n, std::size_t seed) {
  return SortedVector(Sample<Extended>(n, seed));
}

// With many runs of equal values, most of them short.
TQorFloatVector SortedHundredths(std::size_t n, std::size_t seed) {
  auto sorted = SortedSample(n, seed);
  const auto steps = static_cast<Extended>(n / 10);
  for (Extended& x : sorted) x = std::round(x * steps) / 100;
  return sorted;
}

// The longest run of neighbours that are the same within the tolerance.
Extended LongestRun(const TQorFloatVector& v) {
  Extended mode = 0;
  std::size_t longest = 1;
  std::size_t length = 1;
  for (std::size_t i = 1; i < v.size(); ++i) {
    length = SameFloat(v[i], v[i - 1]) ? length + 1 : 1;
    if (length > longest) {
      longest = length;
      mode = v[i];
    }
  }
  return mode;
}

void Modes() {
  const auto ours = [](const TQorFloatVector& v) {
    Extended mode = 0;
    return GetMode(v, mode) ? mode : 0;
  };
  Compare<Extended>("GetMode", "ours", ours, SortedSample);
  Compare<Extended>("GetMode", "loop", LongestRun, SortedSample);
  Compare<Extended>("GetMode, hundredths", "ours", ours, SortedHundredths);
  Compare<Extended>("GetMode, hundredths", "loop", LongestRun, SortedHundredths);
}

void OrderStatistics() {
  Compare<Extended>("MedianAbsoluteDeviation", "ours", [](const TQorFloatVector& v) {
    return MedianAbsoluteDeviation(SortedVector(v));
  });
  Compare<Extended>("MedianAbsoluteDeviation", "GSL", [](const TQorFloatVector& v) {
    static std::vector<double> work;
    work.resize(v.size());
    return gsl_stats_long_double_mad0(v.data(), 1, v.size(), work.data());
  });
  Compare<Extended>("MedianAbsoluteDeviation", "Boost", [](const TQorFloatVector& v) {
    TQorFloatVector copy = CopyVector(v);
    return boost::math::statistics::median_absolute_deviation(copy.begin(), copy.end());
  });

  Compare<double>("ClassFrequencies", "ours", [](const TQorDoubleVector& v) {
    OutsideClasses outside;
    return ClassFrequencies(v, -2, 0.1L, 100, outside)[50];
  });
  Compare<double>("ClassFrequencies", "GSL", [](const TQorDoubleVector& v) {
    gsl_histogram* const histogram = gsl_histogram_alloc(100);
    gsl_histogram_set_ranges_uniform(histogram, -2, 8);
    for (const double x : v) gsl_histogram_increment(histogram, x);
    const double count = gsl_histogram_get(histogram, 50);
    gsl_histogram_free(histogram);
    return count;
  });
}

void Correlations() {
  Compare<Extended>("ExactPairs", "ours", [](const auto& x, const auto& y) {
    ExactPairs pairs;
    pairs.Add(x, y);
    return pairs.Correlation();
  });
  Compare<Extended>("ExactPairs", "classic",
                    [](const auto& x, const auto& y) { return CoeffCorrelation(x, y); });
  Compare<Extended>("ExactPairs", "GSL", [](const auto& x, const auto& y) {
    return gsl_stats_long_double_correlation(x.data(), 1, y.data(), 1, x.size());
  });
  Compare<Extended>("ExactPairs", "Boost", [](const auto& x, const auto& y) {
    return boost::math::statistics::correlation_coefficient(x, y);
  });

  Compare<double>("SpearmanRho", "ours",
                  [](const auto& x, const auto& y) { return SpearmanRho(x, y); });
  Compare<double>("SpearmanRho", "GSL", [](const auto& x, const auto& y) {
    static std::vector<double> work;
    work.resize(2 * x.size());
    return gsl_stats_spearman(x.data(), 1, y.data(), 1, x.size(), work.data());
  });
  Compare<double>("KendallTau", "ours",
                  [](const auto& x, const auto& y) { return KendallTau(x, y); });

  Compare<Extended>("CovarianceMatrix", "ours",
                    [](const TQorFloatVector& v) { return CovarianceMatrix(Columns(v))[1][0]; });
  Compare<Extended>("CovarianceMatrix", "Eigen", [](const TQorFloatVector& v) {
    using Matrix = Eigen::Matrix<Extended, Eigen::Dynamic, Eigen::Dynamic>;
    const auto rows = static_cast<Eigen::Index>(v.size() / kColumns);
    const Eigen::Map<const Matrix> columns(v.data(), rows, kColumns);
    const Matrix centred = columns.rowwise() - columns.colwise().mean();
    const Matrix covariance = centred.transpose() * centred / static_cast<Extended>(rows - 1);
    return covariance(1, 0);
  });
}

void WeightedFigures() {
  Compare<Extended>("WeightedVariance", "ours", [](const TQorFloatVector& v) {
    return WeightedVariance(v, Weights(v.size()), WeightKind::kReliability);
  });
  Compare<Extended>("WeightedVariance", "GSL", [](const TQorFloatVector& v) {
    return gsl_stats_long_double_wvariance(Weights(v.size()).data(), 1, v.data(), 1, v.size());
  });
  Compare<Extended>("WeightedVariance", "loop", [](const TQorFloatVector& v) {
    const std::span<const Extended> w = Weights(v.size());
    Extended v1 = 0, v2 = 0, sum = 0, squares = 0;
    for (std::size_t i = 0; i < v.size(); ++i) {
      v1 += w[i];
      v2 += w[i] * w[i];
      sum += w[i] * v[i];
    }
    const Extended mean = sum / v1;
    for (std::size_t i = 0; i < v.size(); ++i) squares += w[i] * (v[i] - mean) * (v[i] - mean);
    return squares / (v1 - v2 / v1);
  });
  // The elements need not be in order for the time.
  Compare<Extended>("WeightedQuantile", "ours", [](const TQorFloatVector& v) {
    return WeightedQuantile(v, Weights(v.size()), 0.9L);
  });
  Compare<Extended>("WeightedQuantile", "loop", [](const TQorFloatVector& v) {
    const std::span<const Extended> w = Weights(v.size());
    Extended target = 0;
    for (const Extended weight : w) target += weight;
    target *= 0.9L;
    std::size_t i = 0;
    for (Extended sum = w[0]; sum < target; sum += w[++i]) {
    }
    return v[i];
  });
}

[[maybe_unused]] const bool registered = [] {
  Modes();
  OrderStatistics();
  Correlations();
  WeightedFigures();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
