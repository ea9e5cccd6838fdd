// Sorting and ranking, compared with std::sort, with Highway's vqsort and with sorting pairs of
// value and position.

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <hwy/contrib/sort/vqsort.h>
#include <initializer_list>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/vector/QorvexVector.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

template <NumericElement T>
void RegisterSort(const std::string& routine = "QSortVector", MakeSample<T> make = Sample<T>,
                  std::initializer_list<std::size_t> sizes = kSizes) {
  Compare<T>(
      routine, "ours", [](TQorVector<T>& v) { QSortVector(v, true); }, make, sizes);
  Compare<T>(
      routine, "std::sort", [](TQorVector<T>& v) { std::sort(v.begin(), v.end()); }, make, sizes);
  if constexpr (std::invocable<hwy::Sorter, T*, std::size_t, hwy::SortAscending>) {
    Compare<T>(
        routine, "vqsort",
        [](TQorVector<T>& v) { hwy::Sorter()(v.data(), v.size(), hwy::SortAscending()); }, make,
        sizes);
  }
}

// Whole numbers from kLow to kHigh, or hundredths of them.
template <NumericElement T, std::int64_t kLow, std::int64_t kHigh>
TQorVector<T> Between(std::size_t n, std::size_t seed) {
  std::mt19937_64 engine(seed);
  std::uniform_int_distribution<std::int64_t> whole(kLow, kHigh);
  auto vector = TQorVector<T>::WithLength(n);
  for (T& x : vector)
    x = FloatElement<T> ? static_cast<T>(whole(engine)) / 100 : static_cast<T>(whole(engine));
  return vector;
}

template <NumericElement T>
TQorVector<T> Sorted(std::size_t n, std::size_t seed) {
  return SortedVector(Sample<T>(n, seed));
}

template <NumericElement T>
TQorVector<T> Reversed(std::size_t n, std::size_t seed) {
  return SortedVector(Sample<T>(n, seed), false);
}

// One exchange for every hundred elements.
template <NumericElement T>
TQorVector<T> NearlySorted(std::size_t n, std::size_t seed) {
  auto vector = Sorted<T>(n, seed);
  std::mt19937_64 engine(seed);
  for (std::size_t i = 0; i < n / 100; ++i) std::swap(vector[engine() % n], vector[engine() % n]);
  return vector;
}

template <NumericElement T>
void RegisterKindsOfData() {
  const std::initializer_list<std::size_t> sizes = {100'000};
  RegisterSort<T>("QSortVector, sorted", Sorted<T>, sizes);
  RegisterSort<T>("QSortVector, reversed", Reversed<T>, sizes);
  RegisterSort<T>("QSortVector, nearly sorted", NearlySorted<T>, sizes);
  RegisterSort<T>("QSortVector, -2e7 to 8e7", Between<T, -20'000'000, 80'000'000>, sizes);
  RegisterSort<T>("QSortVector, -500 to 499", Between<T, -500, 499>, sizes);
}

template <NumericElement T>
void RegisterFewDistinct() {
  const std::initializer_list<std::size_t> sizes = {1'000, 100'000};
  RegisterSort<T>("QSortVector, few distinct, 3", Between<T, 0, 2>, sizes);
  RegisterSort<T>("QSortVector, few distinct, 100", Between<T, -50, 49>, sizes);
}

[[maybe_unused]] const bool registered = [] {
  RegisterSort<Extended>("QSortVector", Sample<Extended>, kPlotSizes);
  RegisterSort<double>("QSortVector", Sample<double>, kPlotSizes);
  RegisterSort<float>();
  RegisterSort<std::int64_t>();
  RegisterSort<std::int32_t>();
  RegisterSort<std::int16_t>();
  RegisterSort<std::uint8_t>();
  RegisterKindsOfData<Extended>();
  RegisterKindsOfData<double>();
  RegisterKindsOfData<std::int64_t>();
  RegisterKindsOfData<std::int32_t>();
  RegisterFewDistinct<Extended>();
  RegisterFewDistinct<double>();
  RegisterFewDistinct<std::int32_t>();
  Compare<Extended>("Vector2RankVector", "ours",
                    [](const TQorFloatVector& v) { return Vector2RankVector(v, true); });
  Compare<Extended>("Vector2RankVector", "sorted pairs", [](const TQorFloatVector& v) {
    std::vector<std::pair<Extended, std::int32_t>> pairs(v.size());
    for (std::size_t i = 0; i < v.size(); ++i) pairs[i] = {v[i], static_cast<std::int32_t>(i)};
    std::sort(pairs.begin(), pairs.end());
    auto ranks = TQorLIntVector::WithLength(v.size());
    for (std::size_t i = 0; i < v.size(); ++i) {
      ranks[static_cast<std::size_t>(pairs[i].second)] = static_cast<std::int32_t>(i);
    }
    return ranks;
  });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
