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

// Calls add(first, end, in0, in1) for the numbers from first on and below limit that are in one of
// the sets or both, in ascending order, for as many at a time as possible.
template <class Add>
void ForEachRun(const Bits* set0, const Bits* set1, std::size_t first, std::size_t limit, Add add) {
  for (std::size_t k = first; k < limit;) {
    const std::size_t word = k / kBits;
    const Bits members = (set0[word] | set1[word]) >> k % kBits;
    if (members == 0) {
      k = (word + 1) * kBits;
      continue;
    }
    k += static_cast<std::size_t>(std::countr_zero(members));
    if (k >= limit) return;
    const bool in0 = Has(set0, k);
    const bool in1 = Has(set1, k);
    const std::size_t end = EndOfRun(set0, set1, k, limit);
    add(k, end, in0, in1);
    k = end;
  }
}

// AddProducts for a single row.
template <class Pair>
void AddProductsToOne(Extended* sums, const Extended* factors, const Pair* pairs,
                      std::size_t count) {
  Extended sum0 = sums[0];
  Extended sum1 = sums[1];
  for (std::size_t k = 0; k < count; ++k) {
    const Extended factor = factors[k];
    sum0 += pairs[k][0] * factor;
    sum1 += pairs[k][1] * factor;
  }
  sums[0] = sum0;
  sums[1] = sum1;
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
    ForEachRun(row0.added, row1.added, first, limit,
               [&](std::size_t k, std::size_t end, bool to_row0, bool to_row1) {
                 if (to_row0 && to_row1) {
                   AddProducts(sums0, sums1, row0.factors + k, row1.factors + k, pairs + k,
                               end - k);
                 } else if (to_row0) {
                   AddProductsToOne(sums0, row0.factors + k, pairs + k, end - k);
                 } else {
                   AddProductsToOne(sums1, row1.factors + k, pairs + k, end - k);
                 }
               });
  }
  void AddRow0ToRow1(std::size_t row) const {
    if (!Has(row1.added, row)) return;
    const Extended factor = row1.factors[row];
    for (std::size_t j = 0; j < kPair; ++j) sums1[j] += sums0[j] * factor;
  }
};

void Scale(Extended* sums, Extended scale) {
  if (scale == 1) return;
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
  if (tile.row0.is_source) exact &= pairs[row].Store(tile.sums0);
  if (row < sources) tile.AddRow0ToRow1(row);
  Scale(tile.sums1, tile.row1.scale);
  if (tile.row1.is_source) exact &= pairs[row + 1].Store(tile.sums1);
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

void Recurrence::Compute(std::span<const RecurrentRow> rows, std::size_t first, std::size_t sources,
                         std::size_t col, std::size_t cols) {
  const Columns columns{rows, first, sources, col, std::min(kPair, cols - col)};
  const std::size_t done = ComputeRows(columns, first, split_.data());
  if (done >= rows.size()) return;
  for (std::size_t row = first; row < std::min(done + 2, sources); ++row) {
    Extended elements[kPair] = {};
    std::copy_n(rows[row].elements + col, columns.width, elements);
    plain_[row].Store(elements);
  }
  ComputeRows(columns, done + 2, plain_.data());
}

}  // namespace qorvex::inline QorvexMatrix::detail
