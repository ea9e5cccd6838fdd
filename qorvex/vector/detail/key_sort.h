#pragma once

// Sorts integer keys in ascending order.

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "qorvex/base/dyn_array.h"
#include "qorvex/vector/detail/quicksort.h"
#include "qorvex/vector/detail/vector_quicksort.h"

namespace qorvex::inline QorvexVector::detail {

// For shorter inputs, maintaining the counters of a radix pass costs more than it saves.
constexpr std::size_t kShortestRadixSort = 400;

// Least-significant-digit radix sort of the highest bits of the distances from the smallest key, as
// many as distinguish most keys. A quicksort then sorts the runs of keys that are equal in those
// bits. scratch has room for count keys.
template <class Key>
void RadixSort(Key* keys, Key* scratch, std::size_t count) {
  using Distance = typename std::conditional_t<std::is_integral_v<Key>, std::make_unsigned<Key>,
                                               std::type_identity<Key>>::type;
  constexpr int widest_digit = 11;
  Key smallest = keys[0];
  Key largest = keys[0];
  for (std::size_t i = 1; i < count; ++i) {
    smallest = std::min(smallest, keys[i]);
    largest = std::max(largest, keys[i]);
  }
  const auto distance = [=](Key key) {
    return static_cast<Distance>(static_cast<Distance>(key) - static_cast<Distance>(smallest));
  };
  const int width = BitWidth(distance(largest));
  // One and a half times the bits of the count leave few runs of equal keys. The 14 additional bits
  // are for the sign and exponent of floating keys, which hardly distinguish keys.
  const int sorted_bits = std::min(width, 3 * BitWidth(count) / 2 + 14);
  if (sorted_bits == 0) return;
  const int passes = (sorted_bits + widest_digit - 1) / widest_digit;
  const int digit_bits = (sorted_bits + passes - 1) / passes;
  const int lowest_bit = width - sorted_bits;
  const std::size_t digits = std::size_t{1} << digit_bits;

  Key* from = keys;
  Key* to = scratch;
  for (int pass = 0; pass < passes; ++pass) {
    const int shift = lowest_bit + pass * digit_bits;
    const auto digit = [=](Key key) {
      return static_cast<std::size_t>(distance(key) >> shift) & (digits - 1);
    };
    std::array<std::size_t, std::size_t{1} << widest_digit> next;
    std::fill_n(next.data(), digits, std::size_t{0});
    for (std::size_t i = 0; i < count; ++i) ++next[digit(from[i])];
    std::size_t position = 0;
    for (std::size_t d = 0; d < digits; ++d) position += std::exchange(next[d], position);
    for (std::size_t i = 0; i < count; ++i) to[next[digit(from[i])]++] = from[i];
    std::swap(from, to);
  }
  if (from != keys) std::copy(from, from + count, keys);

  if (lowest_bit == 0) return;
  const auto prefix = [=](Key key) { return static_cast<Distance>(distance(key) >> lowest_bit); };
  for (Key *run = keys, *const end = keys + count; run != end;) {
    Key* run_end = run + 1;
    while (run_end != end && prefix(*run_end) == prefix(*run)) ++run_end;
    if (run_end - run > 1) QuickSort(run, run_end);
    run = run_end;
  }
}

// Sorts up to a given number of keys. The constructor allocates all memory, so that a failure
// occurs before a key is moved: as much as the keys take, but none where there are vector
// instructions for the keys or if there are few.
template <class Key>
class KeySorter {
 public:
  explicit KeySorter(std::size_t most)
      : scratch_(HasVectorInstructions() || most < kShortestRadixSort
                     ? DynArray<Key>()
                     : DynArray<Key>::ForOverwrite(most)) {}

  void Sort(Key* keys, std::size_t count, KeyForm form = KeyForm::kInteger) {
    if constexpr (kHasVectorQuickSort<Key>) {
      if (instructions_ == Instructions::kAvx512)
        return VectorQuickSortAvx512(keys, count, form, MostDivisions(count));
      if (instructions_ == Instructions::kAvx2)
        return VectorQuickSortAvx2(keys, count, form, MostDivisions(count));
      if (form == KeyForm::kFloatBits) {
        FlipNegatives(keys, count);
        Sort(keys, count);
        return FlipNegatives(keys, count);
      }
    }
    if constexpr (std::is_same_v<Key, std::int16_t>) {
      if (count <= kMostWidened && instructions_ != Instructions::kBaseline)
        return SortWidened(keys, count);
    }
    if (count < kShortestRadixSort) {
      QuickSort(keys, keys + count);
    } else {
      RadixSort(keys, scratch_.data(), count);
    }
  }

 private:
  [[nodiscard]] bool HasVectorInstructions() const noexcept {
    return kHasVectorQuickSort<Key> && instructions_ != Instructions::kBaseline;
  }

  // For more keys of 16 bits, a radix sort is faster than a vector quicksort of 32 bits with AVX2.
  static constexpr std::size_t kMostWidened = 2048;

  static void SortWidened(Key* keys, std::size_t count) {
    std::array<std::int32_t, kMostWidened> wide;
    std::copy(keys, keys + count, wide.data());
    KeySorter<std::int32_t>(count).Sort(wide.data(), count);
    std::transform(wide.data(), wide.data() + count, keys,
                   [](std::int32_t key) { return static_cast<Key>(key); });
  }

  Instructions instructions_ = BestInstructions();
  DynArray<Key> scratch_;
};

}  // namespace qorvex::inline QorvexVector::detail
