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

// Adds the rows from first to limit, given as pairs, to two columns of two rows.
template <class Pair>
void AddRows(Extended* sums0, Extended* sums1, const RecurrentRow& row0, const RecurrentRow& row1,
             const Pair* pairs, std::size_t first, std::size_t limit) {
  Extended ignored[kPair] = {};
  for (std::size_t k = first; k < limit;) {
    const std::size_t end = EndOfRun(row0.added, row1.added, k, limit);
    const bool to_row0 = Has(row0.added, k);
    const bool to_row1 = Has(row1.added, k);
    if (to_row0 || to_row1) {
      AddProducts(to_row0 ? sums0 : ignored, to_row1 ? sums1 : ignored, row0.factors + k,
                  row1.factors + k, pairs + k, end - k);
    }
    k = end;
  }
}

void Scale(Extended* sums, Extended scale) {
  if (scale == 1) return;
  for (std::size_t j = 0; j < kPair; ++j) sums[j] *= scale;
}

}  // namespace

template <class Pair>
std::size_t Recurrence::ComputeRows(const Columns& columns, std::size_t row, Pair* pairs) {
  const auto [rows, first, sources, col, width] = columns;
  for (bool exact = true; exact && row < rows.size(); row += 2) {
    // The second row may be missing, and so may the second column.
    const bool has_row1 = row + 1 < rows.size();
    const RecurrentRow& row0 = rows[row];
    const RecurrentRow& row1 = rows[has_row1 ? row + 1 : row];
    Extended spare0[kPair] = {};
    Extended spare1[kPair] = {};
    Extended* const sums0 = width == kPair ? row0.elements + col : spare0;
    Extended* const sums1 = width == kPair && has_row1 ? row1.elements + col : spare1;
    if (width < kPair) {
      sums0[0] = row0.elements[col];
      sums1[0] = row1.elements[col];
    }
    AddRows(sums0, sums1, row0, row1, pairs, first, std::min(row, sources));
    Scale(sums0, row0.scale);
    if (row < sources) {
      exact &= pairs[row].Store(sums0);
      if (has_row1 && Has(row1.added, row)) {
        for (std::size_t j = 0; j < kPair; ++j) sums1[j] += sums0[j] * row1.factors[row];
      }
    }
    if (has_row1) {
      Scale(sums1, row1.scale);
      if (row + 1 < sources) exact &= pairs[row + 1].Store(sums1);
    }
    if (width < kPair) {
      row0.elements[col] = sums0[0];
      if (has_row1) row1.elements[col] = sums1[0];
    }
  }
  return row;
}

bool Recurrence::Compute(std::span<const RecurrentRow> rows, std::size_t first, std::size_t sources,
                         std::size_t col, std::size_t cols) {
  const Columns columns{rows, first, sources, col, std::min(kPair, cols - col)};
  const std::size_t done = ComputeRows(columns, first, split_.data());
  if (done >= rows.size()) return true;
  for (std::size_t row = first; row < std::min(done, sources); ++row) {
    Extended elements[kPair] = {};
    std::copy_n(rows[row].elements + col, columns.width, elements);
    plain_[row].Store(elements);
  }
  ComputeRows(columns, done, plain_.data());
  return false;
}

}  // namespace qorvex::inline QorvexMatrix::detail
