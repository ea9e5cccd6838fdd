// Sorting and ranking, compared with std::sort, with Highway's vqsort and with sorting pairs of
// value and position.

#include <algorithm>
#include <concepts>
#include <hwy/contrib/sort/vqsort.h>
#include <utility>
#include <vector>

#include "qorvex/vector/QorvexVector.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

template <NumericElement T>
void RegisterSort(std::initializer_list<std::size_t> sizes = kSizes) {
  Compare<T>(
      "QSortVector", "ours", [](TQorVector<T>& v) { QSortVector(v, true); }, Sample<T>, sizes);
  Compare<T>(
      "QSortVector", "std::sort", [](TQorVector<T>& v) { std::sort(v.begin(), v.end()); },
      Sample<T>, sizes);
  if constexpr (std::invocable<hwy::Sorter, T*, std::size_t, hwy::SortAscending>) {
    Compare<T>(
        "QSortVector", "vqsort",
        [](TQorVector<T>& v) { hwy::Sorter()(v.data(), v.size(), hwy::SortAscending()); },
        Sample<T>, sizes);
  }
}

[[maybe_unused]] const bool registered = [] {
  RegisterSort<Extended>(kPlotSizes);
  RegisterSort<double>(kPlotSizes);
  RegisterSort<float>();
  RegisterSort<std::int64_t>();
  RegisterSort<std::int32_t>();
  RegisterSort<std::int16_t>();
  RegisterSort<std::uint8_t>();
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
