#pragma once

// Sorts unsigned keys in ascending order, without recursion.

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace qorvex::inline QorvexVector::detail {

template <class Key>
int BitWidth(Key key) {
  int width = 0;
  for (; key != 0; key = static_cast<Key>(key >> 1)) ++width;
  return width;
}

template <class Key>
void InsertionSort(Key* first, Key* last) {
  if (first == last) return;
  for (Key* next = first + 1; next != last; ++next) {
    const Key key = *next;
    Key* hole = next;
    for (; hole != first && key < hole[-1]; --hole) *hole = hole[-1];
    *hole = key;
  }
}

// Quicksort on the middle element, with an explicit stack (Hoare 1962, "Quicksort"; Sedgewick 1978,
// "Implementing quicksort programs"). The smaller side is sorted first and the larger one deferred,
// so the stack never holds more than log2(n) entries. A segment that has been divided twice as
// often as halving would need is sorted by a heap sort, which bounds the cost to O(n log n) (Musser
// 1997, "Introspective sorting and selection algorithms").
template <class Key>
void QuickSort(Key* first, Key* last) {
  constexpr std::ptrdiff_t insertion_limit = 24;
  struct Segment {
    Key* first;
    Key* last;
    int divisions_left;
  };
  std::array<Segment, 64> deferred;
  std::size_t depth = 0;
  Segment s{first, last, 2 * BitWidth(static_cast<std::size_t>(last - first))};
  while (true) {
    while (s.last - s.first > insertion_limit && s.divisions_left > 0) {
      --s.divisions_left;
      const Key pivot = s.first[(s.last - s.first) / 2];
      Key* low = s.first;
      Key* high = s.last - 1;
      do {
        while (*low < pivot) ++low;
        while (pivot < *high) --high;
        if (low <= high) std::swap(*low++, *high--);
      } while (low <= high);
      if (high + 1 - s.first < s.last - low) {
        deferred[depth++] = {low, s.last, s.divisions_left};
        s.last = high + 1;
      } else {
        deferred[depth++] = {s.first, high + 1, s.divisions_left};
        s.first = low;
      }
    }
    if (s.last - s.first > insertion_limit) {
      std::make_heap(s.first, s.last);
      std::sort_heap(s.first, s.last);
    } else {
      InsertionSort(s.first, s.last);
    }
    if (depth == 0) return;
    s = deferred[--depth];
  }
}

// For shorter inputs, maintaining the counters of a radix pass costs more than it saves.
constexpr std::size_t kShortestRadixSort = 400;

// Least-significant-digit radix sort of the highest bits in which the keys differ, as many as
// distinguish most keys. A quicksort then sorts the runs of keys that are equal in those bits.
// scratch has room for count keys.
template <class Key>
void RadixSort(Key* keys, Key* scratch, std::size_t count) {
  constexpr int widest_digit = 11;
  Key varying = 0;
  for (std::size_t i = 1; i < count; ++i) varying |= keys[i] ^ keys[0];
  const int width = BitWidth(varying);
  // One and a half times the bits of the count leave few runs of equal keys. The 14 additional bits
  // are for the sign and exponent of floating keys, which hardly distinguish keys.
  const int sorted_bits = std::min(width, 3 * BitWidth(count) / 2 + 14);
  if (sorted_bits == 0) return;
  const int passes = (sorted_bits + widest_digit - 1) / widest_digit;
  const int digit_bits = (sorted_bits + passes - 1) / passes;
  const int lowest_bit = width - sorted_bits;

  Key* from = keys;
  Key* to = scratch;
  for (int pass = 0; pass < passes; ++pass) {
    const int shift = lowest_bit + pass * digit_bits;
    const auto digit = [=](Key key) {
      return static_cast<std::size_t>(key >> shift) & ((std::size_t{1} << digit_bits) - 1);
    };
    std::array<std::size_t, std::size_t{1} << widest_digit> next{};
    for (std::size_t i = 0; i < count; ++i) ++next[digit(from[i])];
    std::size_t position = 0;
    for (std::size_t& place : next) position += std::exchange(place, position);
    for (std::size_t i = 0; i < count; ++i) to[next[digit(from[i])]++] = from[i];
    std::swap(from, to);
  }
  if (from != keys) std::copy(from, from + count, keys);

  if (lowest_bit == 0) return;
  const auto prefix = [=](Key key) { return static_cast<Key>(key >> lowest_bit); };
  for (Key *run = keys, *const end = keys + count; run != end;) {
    Key* run_end = run + 1;
    while (run_end != end && prefix(*run_end) == prefix(*run)) ++run_end;
    if (run_end - run > 1) QuickSort(run, run_end);
    run = run_end;
  }
}

// Sorts up to a given number of keys. The constructor allocates all memory, so that a failure
// occurs before a key is moved.
template <class Key>
class KeySorter {
 public:
  explicit KeySorter(std::size_t most)
      : scratch_(most < kShortestRadixSort ? nullptr
                                           : std::make_unique_for_overwrite<Key[]>(most)) {}

  void Sort(Key* keys, std::size_t count) {
    if (count < kShortestRadixSort) {
      QuickSort(keys, keys + count);
    } else {
      RadixSort(keys, scratch_.get(), count);
    }
  }

 private:
  std::unique_ptr<Key[]> scratch_;
};

}  // namespace qorvex::inline QorvexVector::detail
