#include "qorvex/vector/ranking.h"

#include <algorithm>
#include <cstddef>

#include "qorvex/base/comparisons.h"
#include "qorvex/vector/detail/sorted_indices.h"

namespace qorvex::inline QorvexVector {

namespace {

constexpr std::int32_t kNoRank = -1;
constexpr Extended kContiguityLimit = 0.5L;

template <AnyElement T>
bool AreEqual(T x, T y) {
  if constexpr (FloatElement<T>) {
    return SameFloat(x, y);
  } else {
    return x == y;
  }
}

// The strict order of the sort. False if x is NaN.
template <AnyElement T>
bool IsBefore(T x, T y, bool ascending) {
  return ascending ? x < y : x > y;
}

// The first position in sorted order of an element that equals the value, found by counting the
// elements that sort before it.
template <AnyElement T>
std::int32_t RankByCounting(VectorView<T> vector, T value, bool ascending) {
  const T* first_equal = nullptr;
  for (const T& x : vector) {
    if (AreEqual(x, value) && (first_equal == nullptr || IsBefore(x, *first_equal, ascending)))
      first_equal = &x;
  }
  if (first_equal == nullptr) return kNoRank;
  const T first = *first_equal;
  return static_cast<std::int32_t>(
      std::ranges::count_if(vector, [=](T x) { return IsBefore(x, first, ascending); }));
}

// Ranks all elements in one pass over their sorted order. Elements that equal a given one are
// contiguous, and the first of them never moves back from one element to the next.
template <AnyElement T>
void RankBySorting(VectorView<T> vector, bool ascending, TQorLIntVector& ranks) {
  if (vector.empty()) return;
  const detail::SortedIndices<T> sorted(vector.size(), ascending,
                                        [&](std::size_t i) -> const T& { return vector[i]; });
  std::size_t first_equal = 0;
  T first_value = vector[sorted.Index(0)];
  for (std::size_t position = 0; position < vector.size(); ++position) {
    sorted.Prefetch(position, vector.data());
    sorted.Prefetch(position, ranks.data());
    const T x = vector[sorted.Index(position)];
    if (!AreEqual(x, x)) break;  // NaN, like all elements that follow
    while (!AreEqual(first_value, x)) first_value = vector[sorted.Index(++first_equal)];
    ranks[sorted.Index(position)] = static_cast<std::int32_t>(first_equal);
  }
}

}  // namespace

template <AnyElement T>
TQorLIntVector Vector2RankVector(VectorView<T> vector, bool ascending) {
  auto ranks = TQorLIntVector::WithLength(vector.size());
  if (!FloatElement<T> || !(QorTolerance >= kContiguityLimit)) {
    RankBySorting(vector, ascending, ranks);
  } else {
    std::ranges::transform(vector, ranks.begin(),
                           [&](T x) { return std::max(RankByCounting(vector, x, ascending), 0); });
  }
  return ranks;
}

template <AnyElement T>
std::int32_t Vector2Rank(VectorView<T> vector, std::uint32_t index, bool ascending) {
  if (index >= vector.size()) return kNoRank;
  return RankByCounting(vector, vector[index], ascending);
}

template <AnyElement T>
std::int32_t Vector2RankValue(VectorView<T> vector, ScalarOf<T> value, bool ascending) {
  return RankByCounting<T>(vector, value, ascending);
}

#define QORVEX_INSTANTIATE(T)                                            \
  template TQorLIntVector Vector2RankVector(VectorView<T>, bool);        \
  template std::int32_t Vector2Rank(VectorView<T>, std::uint32_t, bool); \
  template std::int32_t Vector2RankValue(VectorView<T>, ScalarOf<T>, bool);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
