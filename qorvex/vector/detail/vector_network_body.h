// Sorting networks over registers. A source that includes this file defines QORVEX_VECTOR_CODE, the
// mark of functions for its instruction set, because a mark cannot depend on a template parameter.
//
// Columns of lanes are sorted first, then merged pair by pair (Blacher, Giesen, Sanders and
// Wassenberg 2022, "Vectorized and performance-portable quicksort").

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include <limits>
#include <utility>

namespace qorvex::inline QorvexVector::detail {

namespace {

// A register of keys.
template <class InstructionSet, class KeyType>
struct Lanes {
  using Set = InstructionSet;
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
};

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

}  // namespace

}  // namespace qorvex::inline QorvexVector::detail
