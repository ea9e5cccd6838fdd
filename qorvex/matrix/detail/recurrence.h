#pragma once

// The additions of rows that eliminations and substitutions consist of, ordered by column instead
// of by step: two columns at a time go through all steps, so that their elements stay in registers.

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <vector>

#include "qorvex/matrix/detail/split_pairs.h"

namespace qorvex::inline QorvexMatrix::detail {

// Part of a set of small numbers.
using Bits = std::uint64_t;
inline constexpr std::size_t kBits = 64;
[[nodiscard]] constexpr std::size_t WordsFor(std::size_t bits) {
  return (bits + kBits - 1) / kBits;
}
[[nodiscard]] inline bool Has(const Bits* set, std::size_t i) {
  return (set[i / kBits] >> i % kBits & 1U) != 0;
}
inline void Insert(Bits* set, std::size_t i) {
  set[i / kBits] |= Bits{1} << i % kBits;
}

// A row that is computed from the rows before it: row k, multiplied by factors[k], is added to it
// for every k of the set `added`, in ascending order; then it is multiplied by scale.
struct RecurrentRow {
  Extended* elements = nullptr;
  const Extended* factors = nullptr;
  Bits* added = nullptr;
  // Whether it is added to a later row.
  bool is_source = false;
  Extended scale = 1;
};

// Computes columns of recurrent rows.
class Recurrence {
 public:
  // For at most this many rows.
  Recurrence(std::size_t sources, std::pmr::memory_resource* memory)
      : split_(sources, memory), plain_(sources, memory) {}

  // Computes the given column and, unless it is the last one, the next. Rows before `first` are
  // ignored, and rows from `sources` on are not added to any other.
  void Compute(std::span<const RecurrentRow> rows, std::size_t first, std::size_t sources,
               std::size_t col, std::size_t cols);

 private:
  struct Columns {
    std::span<const RecurrentRow> rows;
    std::size_t first, sources, col, width;
  };
  // Computes the rows from the given one on, two at a time. Stops after two of which one cannot be
  // stored exactly, and returns the first of them.
  template <class Pair>
  static std::size_t ComputeRows(const Columns& columns, std::size_t row, Pair* pairs);

  std::pmr::vector<SplitPair> split_;
  std::pmr::vector<PlainPair> plain_;
};

}  // namespace qorvex::inline QorvexMatrix::detail
