#include "qorvex/vector/ranking.h"

#include <algorithm>

#include "qorvex/base/comparisons.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/sorting.h"

namespace qorvex::inline QorvexVector {

namespace {

constexpr std::int32_t kNoRank = -1;
constexpr Extended kContiguityLimit = 0.5L;

template <NumericElement T>
bool Equal(T x, T y) {
  if constexpr (FloatElement<T>) {
    return SameFloat(x, y);
  } else {
    return x == y;
  }
}

// The strict order of the sort; NaN comes before nothing.
template <NumericElement T>
bool Before(T x, T y, bool ascending) {
  return ascending ? x < y : x > y;
}

// The first position in sorted order of an element that equals the value, found by counting what
// sorts before it.
template <NumericElement T>
std::int32_t RankByCounting(const TQorVector<T>& vector, T value, bool ascending) {
  const T* first_equal = nullptr;
  for (const T& x : vector) {
    if (Equal(x, value) && (first_equal == nullptr || Before(x, *first_equal, ascending)))
      first_equal = &x;
  }
  if (first_equal == nullptr) return kNoRank;
  const T first = *first_equal;
  return static_cast<std::int32_t>(
      std::ranges::count_if(vector, [=](T x) { return Before(x, first, ascending); }));
}

// The first position of an element that equals one of the elements. Equal elements lie together in
// the sorted vector, so those before the value's own place are a suffix of what sorts before it.
template <NumericElement T>
std::int32_t RankOfElement(const TQorVector<T>& sorted, T value, bool ascending) {
  const T* const place = std::partition_point(sorted.begin(), sorted.end(),
                                              [=](T x) { return Before(x, value, ascending); });
  if constexpr (FloatElement<T>) {
    const T* const first =
        std::partition_point(sorted.begin(), place, [=](T x) { return !Equal(x, value); });
    return static_cast<std::int32_t>(first - sorted.begin());
  } else {
    return static_cast<std::int32_t>(place - sorted.begin());
  }
}

}  // namespace

template <NumericElement T>
TQorLIntVector Vector2RankVector(const TQorVector<T>& vector, bool ascending) {
  auto ranks = TQorLIntVector::WithLength(vector.size());
  const bool contiguous = IntegerElement<T> || !(QorTolerance >= kContiguityLimit);
  TQorVector<T> sorted;
  if (contiguous) {
    sorted = CopyVector(vector);
    QSortVector(sorted, ascending);
  }
  std::ranges::transform(vector, ranks.begin(), [&](T x) {
    if (!Equal(x, x)) return 0;  // NaN
    return contiguous ? RankOfElement(sorted, x, ascending) : RankByCounting(vector, x, ascending);
  });
  return ranks;
}

template <NumericElement T>
std::int32_t Vector2Rank(const TQorVector<T>& vector, std::uint32_t index, bool ascending) {
  if (index >= vector.size()) return kNoRank;
  return RankByCounting(vector, vector[index], ascending);
}

template <NumericElement T>
std::int32_t Vector2RankValue(const TQorVector<T>& vector, std::type_identity_t<T> value,
                              bool ascending) {
  return RankByCounting(vector, value, ascending);
}

#define QORVEX_INSTANTIATE(T)                                                   \
  template TQorLIntVector Vector2RankVector(const TQorVector<T>&, bool);        \
  template std::int32_t Vector2Rank(const TQorVector<T>&, std::uint32_t, bool); \
  template std::int32_t Vector2RankValue(const TQorVector<T>&, T, bool);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
