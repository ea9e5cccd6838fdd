#include "qorvex/matrix/detail/recurrence.h"

#include <algorithm>
#include <bit>

namespace qorvex::inline QorvexMatrix::detail {

namespace {

// The end, at most limit, of the numbers from k on of which each set has all or none, like k.
std::size_t EndOfRun(const Bits* set0, const Bits* set1, std::size_t k, std::size_t limit) {
  const Bits same0 = Has(set0, k) ? ~Bits{0} : 0;
  const Bits same1 = Has(set1, k) ? ~Bits{0} : 0;
  std::size_t word = k / kBits;
  Bits changes = ((set0[word] ^ same0) | (set1[word] ^ same1)) >> k % kBits << k % kBits;
  while (changes == 0) {
    if (++word * kBits >= limit) return limit;
    changes = (set0[word] ^ same0) | (set1[word] ^ same1);
  }
  return std::min(limit, word * kBits + static_cast<std::size_t>(std::countr_zero(changes)));
}

// The columns of row0 and row1 that are being computed.
struct Tile {
  const RecurrentRow& row0;
  const RecurrentRow& row1;
  Extended* sums0;
  Extended* sums1;

  // Adds the rows from first to limit, given as pairs.
  template <class Pair>
  void AddRows(const Pair* pairs, std::size_t first, std::size_t limit) const {
    for (std::size_t k = first; k < limit;) {
      const std::size_t end = EndOfRun(row0.added, row1.added, k, limit);
      const bool to_row0 = Has(row0.added, k);
      const bool to_row1 = Has(row1.added, k);
      if (to_row0 && to_row1) {
        AddProducts(sums0, sums1, row0.factors + k, row1.factors + k, pairs + k, end - k);
      } else if (to_row0) {
        AddRowsToOne(sums0, row0.factors + k, pairs + k, end - k);
      } else if (to_row1) {
        AddRowsToOne(sums1, row1.factors + k, pairs + k, end - k);
      }
      k = end;
    }
  }
  void AddRow0ToRow1(std::size_t row) const {
    if (!Has(row1.added, row)) return;
    const Extended factor = row1.factors[row];
    for (std::size_t j = 0; j < kPair; ++j) sums1[j] += sums0[j] * factor;
  }

 private:
  template <class Pair>
  static void AddRowsToOne(Extended* sums, const Extended* factors, const Pair* pairs,
                           std::size_t count) {
    Extended ignored[kPair] = {};
    AddProducts(sums, ignored, factors, factors, pairs, count);
  }
};

void Scale(Extended* sums, Extended scale) {
  for (std::size_t j = 0; j < kPair; ++j) sums[j] *= scale;
}

// Computes the tile whose first row has the given index. Returns false if a row that is to be added
// to others could not be stored exactly.
template <class Pair>
bool ComputeTile(const Tile& tile, std::size_t first, std::size_t sources, std::size_t row,
                 Pair* pairs) {
  tile.AddRows(pairs, first, std::min(row, sources));
  Scale(tile.sums0, tile.row0.scale);
  bool exact = true;
  if (row < sources) {
    exact &= pairs[row].Store(tile.sums0);
    tile.AddRow0ToRow1(row);
  }
  Scale(tile.sums1, tile.row1.scale);
  if (row + 1 < sources) exact &= pairs[row + 1].Store(tile.sums1);
  return exact;
}

// The same for a tile that lacks the second row or the second column.
template <class Pair>
bool ComputeEdge(const Tile& tile, std::size_t height, std::size_t width, std::size_t first,
                 std::size_t sources, std::size_t row, Pair* pairs) {
  Extended sums[2][kPair] = {};
  std::copy_n(tile.sums0, width, sums[0]);
  if (height > 1) std::copy_n(tile.sums1, width, sums[1]);
  const bool exact = ComputeTile(Tile{tile.row0, tile.row1, sums[0], sums[1]}, first,
                                 std::min(sources, row + height), row, pairs);
  std::copy_n(sums[0], width, tile.sums0);
  if (height > 1) std::copy_n(sums[1], width, tile.sums1);
  return exact;
}

}  // namespace

template <class Pair>
std::size_t Recurrence::ComputeRows(const Columns& columns, std::size_t row, Pair* pairs) {
  const auto [rows, first, sources, col, width] = columns;
  for (; row < rows.size(); row += 2) {
    const std::size_t height = std::min<std::size_t>(rows.size() - row, 2);
    const RecurrentRow& row0 = rows[row];
    const RecurrentRow& row1 = rows[row + height - 1];
    const Tile tile{row0, row1, row0.elements + col, row1.elements + col};
    const bool exact = height == 2 && width == kPair
                           ? ComputeTile(tile, first, sources, row, pairs)
                           : ComputeEdge(tile, height, width, first, sources, row, pairs);
    if (!exact) return row;
  }
  return row;
}

bool Recurrence::Compute(std::span<const RecurrentRow> rows, std::size_t first, std::size_t sources,
                         std::size_t col, std::size_t cols) {
  const Columns columns{rows, first, sources, col, std::min(kPair, cols - col)};
  const std::size_t done = ComputeRows(columns, first, split_.data());
  if (done >= rows.size()) return true;
  for (std::size_t row = first; row < std::min(done + 2, sources); ++row) {
    Extended elements[kPair] = {};
    std::copy_n(rows[row].elements + col, columns.width, elements);
    plain_[row].Store(elements);
  }
  ComputeRows(columns, done + 2, plain_.data());
  return false;
}

}  // namespace qorvex::inline QorvexMatrix::detail
