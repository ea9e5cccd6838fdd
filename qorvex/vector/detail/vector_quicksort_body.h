// The body of VectorQuickSort, over the registers of one instruction set. A source that includes
// this file defines QORVEX_VECTOR_CODE, the mark of functions for its instruction set, because a
// mark cannot depend on a template parameter.
//
// A quicksort that divides whole vectors (Bramas 2017, "A novel hybrid quicksort algorithm
// vectorized using AVX-512 on Intel Skylake"; Blacher, Giesen, Sanders and Wassenberg 2022,
// "Vectorized and performance-portable quicksort"). One permutation puts the keys of a vector that
// are up to the pivot in front of the others. The vector is then stored at both ends of a gap,
// where its wrong part is overwritten later. Short segments are sorted in registers by a network.
//
// Set::Register is a register. Set::Split(keys, pivots, low, high) stores the keys up to the pivot
// from low on and the others before high, and returns the number of the former. It may write a
// whole register at both places.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include <limits>
#include <utility>

#include "qorvex/vector/detail/quicksort.h"
#include "qorvex/vector/detail/vector_quicksort.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// A register of keys.
template <class Set, class KeyType>
struct Lanes {
  using Key = KeyType;
  using Register = typename Set::Register;
  static constexpr std::size_t kCount = sizeof(Register) / sizeof(Key);
  using All = std::make_index_sequence<kCount>;
  typedef Key Vector __attribute__((vector_size(sizeof(Register))));

  QORVEX_VECTOR_CODE static Vector Load(const Key* keys) {
    Vector vector;
    std::memcpy(&vector, keys, sizeof vector);
    return vector;
  }
  QORVEX_VECTOR_CODE static void Store(Key* keys, Vector vector) {
    std::memcpy(keys, &vector, sizeof vector);
  }
  QORVEX_VECTOR_CODE static Vector Fill(Key key) { return Vector{} + key; }

  QORVEX_VECTOR_CODE static Vector Min(Vector x, Vector y) { return x < y ? x : y; }
  QORVEX_VECTOR_CODE static Vector Max(Vector x, Vector y) { return x < y ? y : x; }

  // Exchanges the lanes whose numbers differ in the bits of kFlip.
  template <std::size_t kFlip, std::size_t... kLane>
  QORVEX_VECTOR_CODE static Vector Flipped(Vector v, std::index_sequence<kLane...>) {
    return __builtin_shufflevector(v, v, static_cast<int>(kLane ^ kFlip)...);
  }
  // The lanes of y if their numbers have the bit, else those of x.
  template <std::size_t kBit, std::size_t... kLane>
  QORVEX_VECTOR_CODE static Vector Chosen(Vector x, Vector y, std::index_sequence<kLane...>) {
    return __builtin_shufflevector(
        x, y, static_cast<int>((kLane & kBit) == 0 ? kLane : kLane + kCount)...);
  }

  // Stores the keys up to the pivot from low on and the others before high, and advances both.
  QORVEX_VECTOR_CODE static void Split(Vector keys, Vector pivots, Key*& low, Key*& high) {
    const std::size_t lows =
        Set::Split(reinterpret_cast<Register>(keys), reinterpret_cast<Register>(pivots), low, high);
    low += lows;
    high -= kCount - lows;
  }
};

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

// The rows of a network whose keys are compared and exchanged.
struct RowPair {
  std::size_t low;
  std::size_t high;
};

// Sorts the rows (Batcher 1968, "Sorting networks and their applications").
template <std::size_t kRows>
constexpr auto SortingPairs() {
  constexpr auto list = [](RowPair* pairs) {
    std::size_t count = 0;
    for (std::size_t p = 1; p < kRows; p *= 2) {
      for (std::size_t k = p; k > 0; k /= 2) {
        for (std::size_t first = k % p; first + k < kRows; first += 2 * k) {
          for (std::size_t i = first; i < std::min(first + k, kRows - k); ++i) {
            if (i / (2 * p) != (i + k) / (2 * p)) continue;
            if (pairs != nullptr) pairs[count] = {i, i + k};
            ++count;
          }
        }
      }
    }
    return count;
  };
  std::array<RowPair, list(nullptr)> pairs{};
  list(pairs.data());
  return pairs;
}

// In blocks of all rows, of half of them, down to two: the first row with the last, the second with
// the last but one, and so on.
template <std::size_t kRows>
constexpr auto MergingPairs() {
  std::array<RowPair, kRows / 2 * static_cast<std::size_t>(std::countr_zero(kRows))> pairs{};
  std::size_t count = 0;
  for (std::size_t block = kRows; block > 1; block /= 2) {
    for (std::size_t first = 0; first < kRows; first += block) {
      for (std::size_t i = 0; i < block / 2; ++i) {
        pairs[count++] = {first + i, first + block - 1 - i};
      }
    }
  }
  return pairs;
}

template <std::size_t kRows>
constexpr auto kSortingPairs = SortingPairs<kRows>();
template <std::size_t kRows>
constexpr auto kMergingPairs = MergingPairs<kRows>();

template <class L, std::size_t kFlip>
QORVEX_VECTOR_CODE inline void Exchange(typename L::Vector& low, typename L::Vector& high) {
  const auto x = low;
  const auto y = L::template Flipped<kFlip>(high, typename L::All());
  low = L::Min(x, y);
  high = L::Max(x, y);
}

template <class L, std::size_t kFlip, const auto& kPairs, std::size_t... kPair>
QORVEX_VECTOR_CODE inline void ExchangePairs([[maybe_unused]] typename L::Vector* rows,
                                             std::index_sequence<kPair...>) {
  (Exchange<L, kFlip>(rows[kPairs[kPair].low], rows[kPairs[kPair].high]), ...);
}

template <class L, std::size_t kFlip, const auto& kPairs>
QORVEX_VECTOR_CODE inline void ExchangeRows(typename L::Vector* rows) {
  ExchangePairs<L, kFlip, kPairs>(rows, std::make_index_sequence<kPairs.size()>());
}

template <class L, std::size_t kFlip>
QORVEX_VECTOR_CODE inline void ExchangeLanes(typename L::Vector& row) {
  constexpr std::size_t high_bit = std::bit_floor(kFlip);
  const auto other = L::template Flipped<kFlip>(row, typename L::All());
  row = L::template Chosen<high_bit>(L::Min(row, other), L::Max(row, other), typename L::All());
  if constexpr (high_bit > 1) ExchangeLanes<L, high_bit / 2>(row);
}

template <class L, std::size_t kFlip, std::size_t... kRow>
QORVEX_VECTOR_CODE inline void ExchangeLanesOfRows(typename L::Vector* rows,
                                                   std::index_sequence<kRow...>) {
  (ExchangeLanes<L, kFlip>(rows[kRow]), ...);
}

// Sorts the keys of all rows, whose columns are sorted. Two groups of columns at a time are merged
// into one that is sorted in the order of its rows; the first and the reverse of the second are a
// bitonic sequence (Batcher 1968).
template <class L, std::size_t kRows, std::size_t kGroup = 2>
QORVEX_VECTOR_CODE inline void MergeColumns(typename L::Vector* rows) {
  if constexpr (kGroup <= L::kCount) {
    ExchangeRows<L, kGroup - 1, kMergingPairs<kRows>>(rows);
    ExchangeLanesOfRows<L, kGroup - 1>(rows, std::make_index_sequence<kRows>());
    MergeColumns<L, kRows, 2 * kGroup>(rows);
  }
}

template <class L, std::size_t kRows>
QORVEX_VECTOR_CODE __attribute__((noinline)) void SortRows(typename L::Vector* memory) {
  typename L::Vector rows[kRows];
  for (std::size_t i = 0; i < kRows; ++i) rows[i] = memory[i];
  ExchangeRows<L, 0, kSortingPairs<kRows>>(rows);
  MergeColumns<L, kRows>(rows);
  for (std::size_t i = 0; i < kRows; ++i) memory[i] = rows[i];
}

constexpr std::size_t kMostRows = 16;

// Sorts as many keys as kMostRows rows hold, or fewer.
template <class L>
QORVEX_VECTOR_CODE void SortShort(typename L::Key* keys, std::size_t count) {
  using Key = typename L::Key;
  const std::size_t full = count / L::kCount;
  const std::size_t rest = count % L::kCount;
  const std::size_t network = std::bit_ceil(full + (rest != 0 ? 1 : 0));
  typename L::Vector rows[kMostRows];
  for (std::size_t i = 0; i < full; ++i) rows[i] = L::Load(keys + i * L::kCount);
  for (std::size_t i = full; i < network; ++i) rows[i] = L::Fill(std::numeric_limits<Key>::max());
  if (rest != 0) std::memcpy(&rows[full], keys + full * L::kCount, rest * sizeof(Key));
  switch (network) {
    case 16:
      SortRows<L, 16>(rows);
      break;
    case 8:
      SortRows<L, 8>(rows);
      break;
    case 4:
      SortRows<L, 4>(rows);
      break;
    case 2:
      SortRows<L, 2>(rows);
      break;
    default:
      SortRows<L, 1>(rows);
  }
  for (std::size_t i = 0; i < full; ++i) L::Store(keys + i * L::kCount, rows[i]);
  if (rest != 0) std::memcpy(keys + full * L::kCount, &rows[full], rest * sizeof(Key));
}

// The median of the lanes' medians in five registers.
template <class L>
QORVEX_VECTOR_CODE typename L::Key ChoosePivot(const typename L::Key* keys, std::size_t count) {
  constexpr std::size_t samples = 5;
  typename L::Vector rows[samples];
  const std::size_t step = (count - L::kCount) / (samples - 1);
  for (std::size_t i = 0; i < samples; ++i) rows[i] = L::Load(keys + i * step);
  ExchangeRows<L, 0, kSortingPairs<samples>>(rows);
  typename L::Vector medians = rows[samples / 2];
  MergeColumns<L, 1>(&medians);
  return medians[L::kCount / 2];
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
    L::Split(a, pivots, low, high);
    L::Split(b, pivots, low, high);
    L::Split(c, pivots, low, high);
    L::Split(d, pivots, low, high);
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
    L::Split(L::Load(from + i), pivots, low, high);
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
QORVEX_VECTOR_CODE void SortSegments(typename L::Key* keys, std::size_t count, KeyForm form) {
  const bool flips = form == KeyForm::kFloatBits;
  if (flips) FlipNegativeLanes<L>(keys, count);
  using Key = typename L::Key;
  struct Segment {
    Key* keys;
    std::size_t count;
    int divisions_left;
  };
  std::array<Segment, 64> deferred;
  std::size_t depth = 0;
  Segment s{keys, count, 2 * BitWidth(count)};
  while (true) {
    while (s.count > kMostRows * L::kCount && s.divisions_left > 0) {
      --s.divisions_left;
      const Key pivot = ChoosePivot<L>(s.keys, s.count);
      const std::size_t lows = Divide<L>(s.keys, s.count, pivot);
      if (lows == s.count) {
        // The pivot is the largest key: its equals are in place once the others are before them.
        const bool all_equal = pivot == std::numeric_limits<Key>::min();
        const std::size_t below =
            all_equal ? 0 : Divide<L>(s.keys, s.count, static_cast<Key>(pivot - 1));
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
