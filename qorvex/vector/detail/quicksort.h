#pragma once

// Sorts keys in ascending order and in place, without recursion.

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace qorvex::inline QorvexVector::detail {

// The number of bits of an unsigned number.
template <class Key>
int BitWidth(Key key) {
  int width = 0;
  for (; key != 0; key = static_cast<Key>(key >> 1)) ++width;
  return width;
}

// How often a quicksort divides a segment: twice as often as halving would need.
inline int MostDivisions(std::size_t count) {
  return 2 * BitWidth(count);
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
// so the stack never holds more than log2(n) entries. A segment that has been divided
// MostDivisions times is sorted by a heap sort, which bounds the cost to O(n log n) (Musser 1997,
// "Introspective sorting and selection algorithms").
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
  Segment s{first, last, MostDivisions(static_cast<std::size_t>(last - first))};
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

}  // namespace qorvex::inline QorvexVector::detail
