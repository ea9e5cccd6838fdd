#include "qorvex/vector/sorting.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>

#include "qorvex/vector/building.h"
#include "qorvex/vector/detail/key_sort.h"
#include "qorvex/vector/detail/sort_keys.h"
#include "qorvex/vector/detail/sorted_indices.h"

namespace qorvex::inline QorvexVector {

namespace {

// Moves elements as bytes, because loading an extended value takes longer than copying it.
template <AnyElement T>
void Reverse(T* first, T* last) {
  std::array<std::byte, sizeof(T)> element;
  for (; last - first > 1; ++first) {
    --last;
    std::memcpy(element.data(), first, sizeof(T));
    std::memcpy(static_cast<void*>(first), last, sizeof(T));
    std::memcpy(static_cast<void*>(last), element.data(), sizeof(T));
  }
}

// Returns true if the elements are in order, after reversing them if necessary. Elements without
// order usually show it after a few comparisons. There are numbers at both ends, and so no NaN
// between elements that are in order.
template <AnyElement T>
bool SortRun(T* elements, std::size_t count, bool ascending) {
  bool rises = false;
  bool falls = false;
  auto last = detail::SortKey<T>::Read(elements);
  for (std::size_t i = 1; i < count && !(rises && falls); ++i) {
    const auto key = detail::SortKey<T>::Read(elements + i);
    rises |= last < key;
    falls |= key < last;
    last = key;
  }
  if (rises && falls) return false;
  if (ascending ? falls : rises) Reverse(elements, elements + count);
  return true;
}

// Sorts elements in ascending order, and returns the number of those that are not NaN.
template <AnyElement T>
class Sorter {
 public:
  explicit Sorter(std::size_t most) : sorter_(most) {}

  std::size_t Sort(T* elements, std::size_t count) {
    // Copying bytes turns the elements into keys, and back.
    void* const bytes = elements;
    Key* const keys =
        std::launder(static_cast<Key*>(std::memmove(bytes, bytes, count * sizeof(T))));
    if constexpr (std::unsigned_integral<T>) FlipSigns(keys, count);
    sorter_.Sort(keys, count,
                 FloatElement<T> ? detail::KeyForm::kFloatBits : detail::KeyForm::kInteger);
    if constexpr (std::unsigned_integral<T>) FlipSigns(keys, count);
    elements = std::launder(static_cast<T*>(std::memmove(bytes, bytes, count * sizeof(T))));
    if constexpr (FloatElement<T>) {
      // NaN with a sign sorts before the numbers, others behind them.
      constexpr T infinity = std::numeric_limits<T>::infinity();
      constexpr auto before = detail::SortsBefore<T>;
      T* const first = std::lower_bound(elements, elements + count, -infinity, before);
      T* const last = std::upper_bound(first, elements + count, infinity, before);
      std::rotate(elements, first, last);
      return static_cast<std::size_t>(last - first);
    }
    return count;
  }

 private:
  using Key = std::make_signed_t<typename detail::SortKey<T>::Key>;

  // Converts unsigned integers into signed ones in the same order, or back.
  static void FlipSigns(Key* keys, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) keys[i] ^= std::numeric_limits<Key>::min();
  }

  detail::KeySorter<Key> sorter_;
};

// Elements of one byte are counted.
template <AnyElement T>
requires(sizeof(T) == 1) class Sorter<T> {
 public:
  explicit Sorter(std::size_t) {}

  std::size_t Sort(T* elements, std::size_t count) {
    if (count < kLeastToCount) {
      detail::QuickSort(elements, elements + count);
      return count;
    }
    // Equal neighbours would wait for each other's counter, so each value has several.
    std::array<std::array<std::size_t, 256>, 4> counts{};
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8) {
      std::uint64_t eight;
      std::memcpy(&eight, elements + i, sizeof eight);
      for (std::size_t byte = 0; byte < 8; ++byte) ++counts[byte % 4][eight >> 8 * byte & 0xFF];
    }
    for (; i < count; ++i) ++counts[0][static_cast<std::uint8_t>(elements[i])];
    for (int value = std::numeric_limits<T>::min(); value <= std::numeric_limits<T>::max();
         ++value) {
      const auto byte = static_cast<std::uint8_t>(value);
      const std::size_t repeats =
          counts[0][byte] + counts[1][byte] + counts[2][byte] + counts[3][byte];
      std::memset(elements, byte, repeats);
      elements += repeats;
    }
    return count;
  }

 private:
  static constexpr std::size_t kLeastToCount = 64;
};

// Moves the elements by their sorted indices. Everything is allocated before an element is moved.
void SortByIndices(TQorFloatVector& vector, bool ascending) {
  Extended* const elements = vector.data();
  const detail::SortedIndices<Extended> sorted(
      vector.size(), ascending, [=](std::size_t i) -> const Extended& { return elements[i]; });
  const TQorFloatVector copy = CopyVector(vector);
  for (std::size_t i = 0; i < vector.size(); ++i) {
    sorted.Prefetch(i, copy.data());
    std::memcpy(elements + i, copy.data() + sorted.Index(i), sizeof(Extended));
  }
}

constexpr std::size_t kMostOfFew = 16;

template <AnyElement T>
void SortFew(T* elements, std::size_t count, bool ascending) {
  using Keys = detail::SortKey<T>;
  std::array<typename Keys::Key, kMostOfFew> keys;
  if constexpr (FloatElement<T>) {
    T* const end = std::partition(elements, elements + count, [](T x) { return x == x; });
    count = static_cast<std::size_t>(end - elements);
  }
  for (std::size_t i = 0; i < count; ++i) keys[i] = Keys::Read(elements + i);
  detail::InsertionSort(keys.data(), keys.data() + count);
  for (std::size_t i = 0; i < count; ++i) {
    elements[i] = Keys::Value(keys[ascending ? i : count - 1 - i]);
  }
}

}  // namespace

template <AnyElement T>
void QSortVector(TQorVector<T>& vector, bool ascending) {
  const std::size_t count = vector.size();
  T* const elements = vector.data();
  if (count <= kMostOfFew) return SortFew(elements, count, ascending);
  const bool ends_are_numbers =
      elements[0] == elements[0] && elements[count - 1] == elements[count - 1];
  if (ends_are_numbers && SortRun(elements, count, ascending)) return;
  if constexpr (std::is_same_v<T, Extended>) {
    SortByIndices(vector, ascending);
  } else {
    const std::size_t numbers = Sorter<T>(count).Sort(elements, count);
    if (!ascending) Reverse(elements, elements + numbers);
  }
}

template <AnyElement T>
TQorVector<T> SortedVector(VectorView<T> vector, bool ascending) {
  auto sorted = CopyVector(vector);
  QSortVector(sorted, ascending);
  return sorted;
}

#define QORVEX_INSTANTIATE(T)                      \
  template void QSortVector(TQorVector<T>&, bool); \
  template TQorVector<T> SortedVector(VectorView<T>, bool);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
