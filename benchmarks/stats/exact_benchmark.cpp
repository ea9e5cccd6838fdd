// Exact sums and samples, compared with plain loops: std::accumulate in long double or the loop in
// int64 for a sum, and for a variance the two passes of the classic routine. The samples are
// normally distributed; "scattered" ones have exponents over the whole range.

#include <cmath>
#include <numeric>
#include <random>
#include <thread>

#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/vector/building.h"
#include "support/compare.h"
#include "support/integer_loops.h"

namespace qorvex::benchmarks {
namespace {

template <class T>
Extended PlainSum(const TQorVector<T>& v) {
  if constexpr (IntegerElement<T>) {
    return static_cast<Extended>(static_cast<std::int64_t>(LoopSum<T>(v)));
  } else {
    return std::accumulate(v.begin(), v.end(), Extended(0));
  }
}

template <class T>
Extended RoundedSum(const TQorVector<T>& v) {
  ExactSum sum;
  sum.Add(v);
  return sum.Round();
}

// The same values with exponents over nearly the whole range, made once for each length.
template <class T>
const TQorVector<T>& Scattered(const TQorVector<T>& v) {
  static std::map<std::size_t, TQorVector<T>> made;
  TQorVector<T>& scattered = made[v.size()];
  if (scattered.empty()) {
    std::mt19937_64 engine(1);
    constexpr int kMost = std::numeric_limits<T>::max_exponent - 24;
    scattered = CopyVector(v);
    for (T& x : scattered) {
      x = std::ldexp(x, static_cast<int>(engine() % (2U * kMost)) - kMost);
    }
  }
  return scattered;
}

// Half of the vector on another thread.
template <class Statistic>
Statistic OnTwoThreads(const TQorFloatVector& v) {
  const std::span<const Extended> values(v);
  const std::size_t half = values.size() / 2;
  Statistic first;
  Statistic second;
  std::thread other([&] { first.Add(values.first(half)); });
  second.Add(values.subspan(half));
  other.join();
  first.Merge(second);
  return first;
}

template <class T>
void Sums() {
  Compare<T>("ExactSum", "ours", [](const TQorVector<T>& v) { return RoundedSum(v); });
  Compare<T>("ExactSum", "plain sum", [](const TQorVector<T>& v) { return PlainSum(v); });
  Compare<T>("ExactSum, scattered", "ours",
             [](const TQorVector<T>& v) { return RoundedSum(Scattered(v)); });
  Compare<T>("ExactSum, scattered", "plain sum",
             [](const TQorVector<T>& v) { return PlainSum(Scattered(v)); });
  Compare<T>("ExactSum of products", "ours", [](const TQorVector<T>& v, const TQorVector<T>& w) {
    ExactSum sum;
    sum.AddProduct(v, w);
    return sum.Round();
  });
  Compare<T>("ExactSum of products", "plain inner product",
             [](const TQorVector<T>& v, const TQorVector<T>& w) {
               return std::inner_product(v.begin(), v.end(), w.begin(), Extended(0));
             });
}

template <class T>
void Samples() {
  Compare<T>("ExactSample: mean, variance", "ours", [](const TQorVector<T>& v) {
    ExactSample<2> sample;
    sample.Add(v);
    return sample.Mean() + sample.SampleVariance();
  });
  Compare<T>("ExactSample: mean, variance", "plain sum",
             [](const TQorVector<T>& v) { return PlainSum(v); });
  Compare<T>("ExactSample: mean, variance", "classic",
             [](const TQorVector<T>& v) { return QorMean(v) + SampleVariance(v); });
  Compare<T>("ExactSample: four power sums", "ours", [](const TQorVector<T>& v) {
    ExactSample<4> sample;
    sample.Add(v);
    return sample.SampleKurtosis();
  });
  Compare<T>("ExactSample: four power sums", "plain sum",
             [](const TQorVector<T>& v) { return PlainSum(v); });
}

void Threads() {
  Compare<Extended>("ExactSample<2>, two threads", "ours", [](const TQorFloatVector& v) {
    return OnTwoThreads<ExactSample<2>>(v).SampleVariance();
  });
  Compare<Extended>("ExactSample<2>, two threads", "one thread", [](const TQorFloatVector& v) {
    ExactSample<2> sample;
    sample.Add(v);
    return sample.SampleVariance();
  });
  Compare<Extended>("ExactSample<4>, two threads", "ours", [](const TQorFloatVector& v) {
    return OnTwoThreads<ExactSample<4>>(v).SampleKurtosis();
  });
  Compare<Extended>("ExactSample<4>, two threads", "one thread", [](const TQorFloatVector& v) {
    ExactSample<4> sample;
    sample.Add(v);
    return sample.SampleKurtosis();
  });
}

[[maybe_unused]] const bool registered = [] {
  Sums<Extended>();
  Sums<double>();
  Sums<float>();
  Compare<std::int32_t>("ExactSum", "ours", RoundedSum<std::int32_t>);
  Compare<std::int32_t>("ExactSum", "plain sum", PlainSum<std::int32_t>);
  Compare<std::int64_t>("ExactSum", "ours", RoundedSum<std::int64_t>);
  Compare<std::int64_t>("ExactSum", "plain sum", PlainSum<std::int64_t>);
  Samples<Extended>();
  Samples<double>();
  Samples<std::int64_t>();
  Threads();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
