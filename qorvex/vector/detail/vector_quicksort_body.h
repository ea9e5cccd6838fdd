// The body of the vector quicksort, over the registers of one instruction set. A source that
// includes this file defines QORVEX_VECTOR_CODE; see vector_network_body.h.
//
// A quicksort that divides whole vectors (Bramas 2017, "A novel hybrid quicksort algorithm
// vectorized using AVX-512 on Intel Skylake"; Blacher, Giesen, Sanders and Wassenberg 2022,
// "Vectorized and performance-portable quicksort"). One permutation puts the keys of a vector that
// are up to the pivot in front of the others. The vector is then stored at both ends of a gap,
// where its wrong part is overwritten later. Short segments are sorted in registers by a network,
// and segments with few values by counting them.
//
// Set::Register is a register. Set::Split(keys, pivots, low, high) stores the keys up to the pivot
// from low on and the others before high, and returns the number of the former. It may write a
// whole register at both places.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "qorvex/vector/detail/quicksort.h"
#include "qorvex/vector/detail/vector_counting_body.h"
#include "qorvex/vector/detail/vector_network_body.h"
#include "qorvex/vector/detail/vector_quicksort.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// For a mask of eight lanes: first the lanes that are not marked, then those that are.
constexpr auto kMarkedLanesLast = [] {
  std::array<std::array<std::uint8_t, 8>, 256> table{};
  for (unsigned mask = 0; mask < 256; ++mask) {
    auto* next = table[mask].data();
    for (const unsigned marked : {0U, 1U}) {
      for (unsigned lane = 0; lane < 8; ++lane) {
        if ((mask >> lane & 1U) == marked) *next++ = static_cast<std::uint8_t>(lane);
      }
    }
  }
  return table;
}();

// Stores the keys up to the pivot from low on and the others before high, and advances both.
template <class L>
QORVEX_VECTOR_CODE inline void SplitKeys(typename L::Vector keys, typename L::Vector pivots,
                                         typename L::Key*& low, typename L::Key*& high) {
  using Register = typename L::Register;
  const std::size_t lows = L::Set::Split(reinterpret_cast<Register>(keys),
                                         reinterpret_cast<Register>(pivots), low, high);
  low += lows;
  high -= L::kCount - lows;
}

template <class Key>
struct Pivot {
  Key key;
  bool is_repeated;  // among the lanes' medians
};

// The median of the lanes' medians in five registers.
template <class L>
QORVEX_VECTOR_CODE Pivot<typename L::Key> ChoosePivot(const typename L::Key* keys,
                                                      std::size_t count) {
  constexpr std::size_t samples = 5;
  typename L::Vector rows[samples];
  const std::size_t step = (count - L::kCount) / (samples - 1);
  for (std::size_t i = 0; i < samples; ++i) rows[i] = L::Load(keys + i * step);
  ExchangeRows<L, 0, kSortingPairs<samples>>(rows);
  typename L::Vector medians = rows[samples / 2];
  MergeColumns<L, 1>(&medians);
  constexpr std::size_t middle = L::kCount / 2;
  const typename L::Key key = medians[middle];
  return {key, medians[middle - 1] == key || medians[middle + 1] == key};
}

// Four registers.
template <class L>
struct Block {
  static constexpr std::size_t kCount = 4 * L::kCount;
  typename L::Vector a, b, c, d;

  QORVEX_VECTOR_CODE explicit Block(const typename L::Key* keys)
      : a(L::Load(keys)),
        b(L::Load(keys + L::kCount)),
        c(L::Load(keys + 2 * L::kCount)),
        d(L::Load(keys + 3 * L::kCount)) {}

  QORVEX_VECTOR_CODE void Split(typename L::Vector pivots, typename L::Key*& low,
                                typename L::Key*& high) const {
    SplitKeys<L>(a, pivots, low, high);
    SplitKeys<L>(b, pivots, low, high);
    SplitKeys<L>(c, pivots, low, high);
    SplitKeys<L>(d, pivots, low, high);
  }
};

// Moves the keys up to the pivot to the front of another array and those above it to its end.
// Returns the number of the former.
template <class L>
QORVEX_VECTOR_CODE std::size_t DivideTo(const typename L::Key* from, std::size_t count,
                                        typename L::Key pivot, typename L::Key* to) {
  const auto pivots = L::Fill(pivot);
  typename L::Key* low = to;
  typename L::Key* high = to + count;
  std::size_t i = 0;
  // The gap must hold two vectors, or one end would overwrite the other.
  for (; i + 2 * L::kCount <= count; i += L::kCount) {
    SplitKeys<L>(L::Load(from + i), pivots, low, high);
  }
  for (; i < count; ++i) {
    const typename L::Key key = from[i];
    *low = key;
    high[-1] = key;
    low += key <= pivot ? 1 : 0;
    high -= key <= pivot ? 0 : 1;
  }
  return static_cast<std::size_t>(low - to);
}

// Divides at least three blocks in place, and returns the number of keys up to the pivot. A block
// at either end is set aside. The next block is loaded from the end with the smaller gap before the
// last one is stored, so that both gaps have room for a block, and so that the choice does not wait
// for that block.
template <class L>
QORVEX_VECTOR_CODE std::size_t Divide(typename L::Key* keys, std::size_t count,
                                      typename L::Key pivot) {
  using Key = typename L::Key;
  constexpr std::size_t block = Block<L>::kCount;
  const auto pivots = L::Fill(pivot);
  const std::size_t rest = block + count % block;
  Key aside[3 * block];
  std::memcpy(aside, keys, block * sizeof(Key));
  std::memcpy(aside + block, keys + count - rest, rest * sizeof(Key));
  Key* low = keys;
  Key* high = keys + count;
  const Key* next = low + block;
  const Key* end = high - rest;
  Block<L> last(next);
  next += block;
  while (next != end) {
    // Computed, because a branch would be mispredicted half the time.
    const std::size_t from_end = next - low > high - end ? 1 : 0;
    end -= block * from_end;
    const Block<L> taken(next + static_cast<std::size_t>(end - next) * from_end);
    next += block * (1 - from_end);
    last.Split(pivots, low, high);
    last = taken;
  }
  last.Split(pivots, low, high);
  return static_cast<std::size_t>(low - keys) + DivideTo<L>(aside, block + rest, pivot, low);
}

// FlipNegatives in registers.
template <class L>
QORVEX_VECTOR_CODE void FlipNegativeLanes(typename L::Key* keys, std::size_t count) {
  const auto magnitude = L::Fill(std::numeric_limits<typename L::Key>::max());
  std::size_t i = 0;
  for (; i + L::kCount <= count; i += L::kCount) {
    const auto several = L::Load(keys + i);
    L::Store(keys + i, several ^ ((several < 0) & magnitude));
  }
  FlipNegatives(keys + i, count - i);
}

// Segments wait on a stack and are limited in their divisions as in QuickSort. The bits of floating
// numbers are converted back where a segment is complete, while it is in the cache.
template <class L>
QORVEX_VECTOR_CODE void SortSegments(typename L::Key* keys, std::size_t count, KeyForm form,
                                     int most_divisions) {
  using Key = typename L::Key;
  const bool flips = form == KeyForm::kFloatBits;
  if (flips) FlipNegativeLanes<L>(keys, count);
  struct Segment {
    Key* keys;
    std::size_t count;
    int divisions_left;
  };
  std::array<Segment, 64> deferred;
  std::size_t depth = 0;
  Segment s{keys, count, most_divisions};
  while (true) {
    while (s.count > kMostRows * L::kCount && s.divisions_left > 0) {
      --s.divisions_left;
      const Pivot<Key> pivot = ChoosePivot<L>(s.keys, s.count);
      if (pivot.is_repeated && SortFewValues<L>(s.keys, s.count)) {
        if (flips) FlipNegativeLanes<L>(s.keys, s.count);
        s.count = 0;
        continue;
      }
      const std::size_t lows = Divide<L>(s.keys, s.count, pivot.key);
      if (lows == s.count) {
        // The pivot is the largest key: its equals are in place once the others are before them.
        // There are others, since equal keys have been counted, so the pivot is not the smallest.
        const std::size_t below = Divide<L>(s.keys, s.count, static_cast<Key>(pivot.key - 1));
        if (flips) FlipNegativeLanes<L>(s.keys + below, s.count - below);
        s.count = below;
        continue;
      }
      const Segment low{s.keys, lows, s.divisions_left};
      const Segment high{s.keys + lows, s.count - lows, s.divisions_left};
      deferred[depth++] = low.count < high.count ? high : low;
      s = low.count < high.count ? low : high;
    }
    if (s.count > kMostRows * L::kCount) {
      std::make_heap(s.keys, s.keys + s.count);
      std::sort_heap(s.keys, s.keys + s.count);
    } else if (s.count > 1) {
      SortShort<L>(s.keys, s.count);
    }
    if (flips) FlipNegativeLanes<L>(s.keys, s.count);
    if (depth == 0) return;
    s = deferred[--depth];
  }
}

}  // namespace

}  // namespace qorvex::inline QorvexVector::detail
