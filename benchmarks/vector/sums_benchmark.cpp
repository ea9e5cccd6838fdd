// Sums, sums of squares, dot products and extremes, compared with the plain loop (in long double
// for floating elements, in int64 for integers) and with statistics libraries.

#include <Eigen/Core>
#include <algorithm>
#include <boost/math/statistics/univariate_statistics.hpp>
#include <gsl/gsl_statistics_long_double.h>
#include <numeric>

#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/compare.h"
#include "support/integer_loops.h"

namespace qorvex::benchmarks {
namespace {

using EigenVector = Eigen::Map<const Eigen::Matrix<Extended, Eigen::Dynamic, 1>>;

EigenVector AsEigen(const TQorFloatVector& v) {
  return {v.data(), static_cast<Eigen::Index>(v.size())};
}

// Normally distributed with mean 0, so that sums stay small.
template <FloatElement T>
TQorVector<T> BothSigns(std::size_t n, std::size_t seed) {
  auto vector = Sample<T>(n, seed);
  for (T& x : vector) x -= 3;
  return vector;
}

template <NumericElement T>
void RegisterSum(std::initializer_list<std::size_t> sizes = kSizes, MakeSample<T> make = Sample<T>,
                 const char* routine = "SumVector") {
  Compare<T>(
      routine, "ours", [](const TQorVector<T>& v) { return SumVector(v); }, make, sizes);
  const auto loop = [](const TQorVector<T>& v) {
    if constexpr (IntegerElement<T>) {
      return LoopSum<T>(v);
    } else {
      return std::accumulate(v.begin(), v.end(), Extended(0));
    }
  };
  Compare<T>(routine, IntegerElement<T> ? "loop" : "std::accumulate", loop, make, sizes);
  if constexpr (FloatElement<T>) {
    const auto exact = [](const TQorVector<T>& v) {
      ExactSum sum;
      sum.Add(v);
      return sum.Round();
    };
    Compare<T>(routine, "ExactSum", exact, make);
  }
}

template <NumericElement T>
void RegisterType() {
  if constexpr (IntegerElement<T>) {
    Compare<T>("SumVector", "std::accumulate, -O3", [](const TQorVector<T>& v) {
      return std::accumulate(v.begin(), v.end(), std::uint64_t{});
    });
  }
  Compare<T>("SumSqVector", "ours", [](const TQorVector<T>& v) { return SumSqVector(v); });
  Compare<T>("SumSqVector", "loop", [](const TQorVector<T>& v) {
    if constexpr (IntegerElement<T>) {
      return LoopDotProduct<T>(v, v);
    } else {
      Extended sum = 0;
      for (const T x : v) sum += static_cast<Extended>(x) * static_cast<Extended>(x);
      return sum;
    }
  });
  Compare<T>("MinMaxVector", "ours", [](const TQorVector<T>& v) {
    T low = 0;
    T high = 0;
    std::uint32_t low_at = 0;
    std::uint32_t high_at = 0;
    bool low_once = false;
    bool high_once = false;
    MinMaxVector(v, low, high, low_at, high_at, low_once, high_once);
    return low_at + high_at;
  });
  Compare<T>("MinMaxVector", "std::minmax_element", [](const TQorVector<T>& v) {
    const auto [low, high] = std::minmax_element(v.begin(), v.end());
    return low - high;
  });
}

template <WideNumericElement T>
void RegisterDotProduct() {
  Compare<T>("DotProdVectors", "ours",
             [](const TQorVector<T>& v, const TQorVector<T>& w) { return DotProdVectors(v, w); });
  Compare<T>("DotProdVectors", "loop", [](const TQorVector<T>& v, const TQorVector<T>& w) {
    if constexpr (IntegerElement<T>) {
      return LoopDotProduct<T>(v, w);
    } else {
      Extended sum = 0;
      for (std::size_t i = 0; i < v.size(); ++i)
        sum += static_cast<Extended>(v[i]) * static_cast<Extended>(w[i]);
      return sum;
    }
  });
}

void RegisterPeers() {
  Compare<Extended>("SumVector", "Eigen",
                    [](const TQorFloatVector& v) { return AsEigen(v).sum(); });
  Compare<Extended>("SumVector", "GSL mean", [](const TQorFloatVector& v) {
    return gsl_stats_long_double_mean(v.data(), 1, v.size());
  });
  Compare<Extended>("SumVector", "Boost mean", [](const TQorFloatVector& v) {
    return boost::math::statistics::mean(v.begin(), v.end());
  });
  Compare<Extended>("SumSqVector", "Eigen",
                    [](const TQorFloatVector& v) { return AsEigen(v).squaredNorm(); });
  Compare<Extended>("DotProdVectors", "Eigen",
                    [](const TQorFloatVector& v, const TQorFloatVector& w) {
                      return AsEigen(v).dot(AsEigen(w));
                    });
  Compare<Extended>("MinMaxVector", "GSL", [](const TQorFloatVector& v) {
    std::size_t low = 0;
    std::size_t high = 0;
    gsl_stats_long_double_minmax_index(&low, &high, v.data(), 1, v.size());
    return low + high;
  });
}

[[maybe_unused]] const bool registered = [] {
  RegisterSum<Extended>(kPlotSizes);
  RegisterSum<double>(kPlotSizes);
  RegisterSum<float>();
  RegisterSum<std::int64_t>();
  RegisterSum<std::uint32_t>();
  RegisterSum<std::int32_t>(kPlotSizes);
  RegisterSum<std::uint16_t>();
  RegisterSum<std::int16_t>();
  RegisterSum<std::uint8_t>();
  RegisterSum<std::int8_t>();
  RegisterSum<Extended>(kSizes, BothSigns<Extended>, "SumVector, both signs");
  RegisterSum<double>(kSizes, BothSigns<double>, "SumVector, both signs");
  RegisterType<Extended>();
  RegisterType<double>();
  RegisterType<float>();
  RegisterType<std::int64_t>();
  RegisterType<std::uint32_t>();
  RegisterType<std::int32_t>();
  RegisterType<std::uint16_t>();
  RegisterType<std::int16_t>();
  RegisterType<std::uint8_t>();
  RegisterType<std::int8_t>();
  RegisterDotProduct<Extended>();
  RegisterDotProduct<double>();
  RegisterDotProduct<float>();
  RegisterDotProduct<std::int64_t>();
  RegisterDotProduct<std::uint32_t>();
  RegisterDotProduct<std::int32_t>();
  RegisterPeers();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
