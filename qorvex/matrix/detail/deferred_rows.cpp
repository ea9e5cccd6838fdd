#include "qorvex/matrix/detail/deferred_rows.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <utility>

#include "qorvex/matrix/detail/row_kernels.h"

namespace qorvex::inline QorvexMatrix::detail {

DeferredRows::DeferredRows(TQorFloatMatrix& matrix, std::size_t cols) : cols_(cols) {
  rows_.reserve(matrix.size());
  for (TQorFloatVector& row : matrix) rows_.push_back({.elements = row.data()});
  sources_.reserve(kMostSources);
  quads_ = std::make_unique_for_overwrite<SplitQuad[]>((cols + kQuad - 1) / kQuad * kMostSources);
}

Extended DeferredRows::At(std::size_t row, std::size_t col) const {
  const Row& target = rows_[row];
  Extended x = target.elements[col];
  for (unsigned pending = target.pending; pending != 0; pending &= pending - 1) {
    const auto source = static_cast<std::size_t>(std::countr_zero(pending));
    x += rows_[sources_[source]].elements[col] * target.factors[source];
  }
  return x;
}

void DeferredRows::Clear(std::size_t row, std::size_t col) {
  assert(rows_[row].slot == kNoSlot && rows_[row].cleared == col);
  rows_[row].elements[col] = 0;
  rows_[row].cleared = col + 1;
}

void DeferredRows::Swap(std::size_t row1, std::size_t row2) {
  Row& a = rows_[row1];
  Row& b = rows_[row2];
  assert(a.slot == kNoSlot && b.slot == kNoSlot);
  SwapElements(a.elements, b.elements, cols_);
  std::swap(a.cleared, b.cleared);
  std::swap(a.factors, b.factors);
  std::swap(a.pending, b.pending);
}

void DeferredRows::Scale(std::size_t row, Extended factor) {
  Row& scaled = rows_[row];
  assert(scaled.slot == kNoSlot);
  FlushRow(scaled);
  ScaleElements(scaled.elements + scaled.cleared, cols_ - scaled.cleared, factor);
}

void DeferredRows::Add(std::size_t target, std::size_t source, Extended factor) {
  Row& row = rows_[target];
  if (!MakeSource(source)) {
    FlushRow(row);
    AddElements(row.elements + row.cleared, rows_[source].elements + row.cleared,
                cols_ - row.cleared, factor);
    return;
  }
  const std::size_t slot = rows_[source].slot;
  assert(row.slot == kNoSlot && row.pending >> slot == 0);
  row.factors[slot] = factor;
  row.pending |= 1U << slot;
}

void DeferredRows::Flush() {
  for (Row& row : rows_) FlushRow(row);
  for (const std::size_t source : sources_) rows_[source].slot = kNoSlot;
  sources_.clear();
}

// Assigns the row a slot and stores its elements there. Returns false, and assigns none, if an
// element is not exactly the sum of two doubles.
bool DeferredRows::MakeSource(std::size_t source) {
  Row& row = rows_[source];
  if (row.slot != kNoSlot) return true;
  if (sources_.size() == kMostSources) Flush();
  FlushRow(row);
  const std::size_t slot = sources_.size();
  bool exact = true;
  for (std::size_t col = FirstQuad(row); col < cols_; col += kQuad) {
    exact &= Quads(col)[slot].Store(row.elements + col, std::min(kQuad, cols_ - col));
  }
  if (!exact) return false;
  row.slot = slot;
  sources_.push_back(source);
  return true;
}

void DeferredRows::FlushRow(Row& row) {
  const std::size_t first_col = FirstQuad(row);
  while (row.pending != 0) {
    // Adjacent sources, usually all of them, are added in one pass.
    const auto first = static_cast<std::size_t>(std::countr_zero(row.pending));
    const auto count = static_cast<std::size_t>(std::countr_one(row.pending >> first));
    for (std::size_t col = first_col; col < cols_; col += kQuad) {
      AddProducts(row.elements + col, &row.factors[first], Quads(col) + first, count, cols_ - col);
    }
    row.pending &= ~(((1U << count) - 1) << first);
  }
  // The first quad may start with cleared elements.
  std::fill(row.elements + first_col, row.elements + row.cleared, Extended(0));
}

}  // namespace qorvex::inline QorvexMatrix::detail
