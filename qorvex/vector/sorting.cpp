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

// Converts between unsigned and signed integers in the same order, or between the bits of floating
// elements and such integers: flips the sign, or the other bits if the sign is set.
template <AnyElement T, class Key>
void ConvertKeys(Key* keys, std::size_t count) {
  constexpr int sign_bit = 8 * sizeof(Key) - 1;
  constexpr Key lowest = std::numeric_limits<Key>::min();
  for (std::size_t i = 0; i < count; ++i) {
    keys[i] ^= FloatElement<T> ? (keys[i] >> sign_bit) & ~lowest : lowest;
  }
}

// Sorts elements in ascending order, and returns the number of those that are not NaN.
template <AnyElement T>
class Sorter {
 public:
  explicit Sorter(std::size_t most) : sorter_(most) {}

  std::size_t Sort(T* elements, std::size_t count) {
    // The bytes become keys and back; copying bytes creates the new objects.
    Key* const keys =
        std::launder(static_cast<Key*>(std::memmove(elements, elements, count * sizeof(T))));
    if constexpr (kConverts) ConvertKeys<T>(keys, count);
    sorter_.Sort(keys, count);
    std::size_t numbers = count;
    if constexpr (FloatElement<T>) {
      // NaN with a sign sorts before the numbers, others behind them.
      constexpr T infinity = std::numeric_limits<T>::infinity();
      Key* const first = std::lower_bound(keys, keys + count, KeyOf(-infinity));
      Key* const last = std::upper_bound(first, keys + count, KeyOf(infinity));
      std::rotate(keys, first, last);
      numbers = static_cast<std::size_t>(last - first);
    }
    if constexpr (kConverts) ConvertKeys<T>(keys, count);
    return numbers;
  }

 private:
  using Key = std::make_signed_t<typename detail::SortKey<T>::Key>;
  static constexpr bool kConverts = FloatElement<T> || std::unsigned_integral<T>;

  static Key KeyOf(T value) noexcept {
    Key key;
    std::memcpy(&key, &value, sizeof key);
    ConvertKeys<T>(&key, 1);
    return key;
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

// Extended elements are moved by their sorted indices, or, if there are few, sorted as keys of 16
// bytes. Everything is allocated before an element is moved.
void SortExtended(TQorFloatVector& vector, bool ascending) {
  using Keys = detail::SortKey<Extended>;
  constexpr std::size_t most_keys = 32;
  Extended* const elements = vector.data();
  if (vector.size() <= most_keys) {
    std::array<Keys::Key, most_keys> keys;
    Extended* const end =
        std::partition(elements, elements + vector.size(), [](Extended x) { return x == x; });
    const auto numbers = static_cast<std::size_t>(end - elements);
    for (std::size_t i = 0; i < numbers; ++i) keys[i] = Keys::Read(elements + i);
    detail::QuickSort(keys.data(), keys.data() + numbers);
    if (!ascending) std::reverse(keys.data(), keys.data() + numbers);
    for (std::size_t i = 0; i < numbers; ++i) elements[i] = Keys::Value(keys[i]);
    return;
  }
  const detail::SortedIndices<Extended> sorted(
      vector.size(), ascending, [=](std::size_t i) -> const Extended& { return elements[i]; });
  const TQorFloatVector copy = CopyVector(vector);
  for (std::size_t i = 0; i < vector.size(); ++i) {
    std::memcpy(elements + i, copy.data() + sorted.Index(i), sizeof(Extended));
  }
}

}  // namespace

template <AnyElement T>
void QSortVector(TQorVector<T>& vector, bool ascending) {
  const std::size_t count = vector.size();
  if (count < 2) return;
  T* const elements = vector.data();
  const bool ends_are_numbers =
      elements[0] == elements[0] && elements[count - 1] == elements[count - 1];
  if (ends_are_numbers && SortRun(elements, count, ascending)) return;
  if constexpr (std::is_same_v<T, Extended>) {
    SortExtended(vector, ascending);
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
