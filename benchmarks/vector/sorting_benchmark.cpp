// Sorting and ranking, compared with std::sort and with sorting pairs of value and position.

#include <algorithm>
#include <utility>
#include <vector>

#include "qorvex/vector/QorvexVector.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// Sorts a new copy each time, because an input that is already sorted is easy to predict.
template <NumericElement T>
void RegisterSort() {
  Compare<T>("QSortVector", "ours", [](const TQorVector<T>& v) {
    TQorVector<T> copy = CopyVector(v);
    QSortVector(copy, true);
    return copy;
  });
  Compare<T>("QSortVector", "std::sort", [](const TQorVector<T>& v) {
    TQorVector<T> copy = CopyVector(v);
    std::sort(copy.begin(), copy.end());
    return copy;
  });
}

[[maybe_unused]] const bool registered = [] {
  RegisterSort<Extended>();
  RegisterSort<double>();
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
