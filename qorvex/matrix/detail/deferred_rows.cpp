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
  sources_.reserve(kDepth);
  quads_ = std::make_unique_for_overwrite<SplitQuad[]>((cols + kQuad - 1) / kQuad * kDepth);
}

Extended DeferredRows::At(std::size_t row, std::size_t col) const {
  const Row& target = rows_[row];
  Extended x = target.elements[col];
  for (unsigned waiting = target.waiting; waiting != 0; waiting &= waiting - 1) {
    const auto source = static_cast<std::size_t>(std::countr_zero(waiting));
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
  std::swap(a.waiting, b.waiting);
}

void DeferredRows::Scale(std::size_t row, Extended factor) {
  Row& scaled = rows_[row];
  assert(scaled.slot == kNoSlot);
  SettleRow(scaled);
  ScaleElements(scaled.elements + scaled.cleared, cols_ - scaled.cleared, factor);
}

void DeferredRows::Add(std::size_t target, std::size_t source, Extended factor) {
  Row& row = rows_[target];
  if (!BecomeSource(source)) {
    SettleRow(row);
    AddElements(row.elements + row.cleared, rows_[source].elements + row.cleared,
                cols_ - row.cleared, factor);
    return;
  }
  const std::size_t slot = rows_[source].slot;
  assert(row.slot == kNoSlot && row.waiting >> slot == 0);
  row.factors[slot] = factor;
  row.waiting |= 1U << slot;
}

void DeferredRows::Settle() {
  for (Row& row : rows_) SettleRow(row);
  for (const std::size_t source : sources_) rows_[source].slot = kNoSlot;
  sources_.clear();
}

// Gives the row a slot. False when its elements do not split; it then has none.
bool DeferredRows::BecomeSource(std::size_t source) {
  Row& row = rows_[source];
  if (row.slot != kNoSlot) return true;
  if (sources_.size() == kDepth) Settle();
  SettleRow(row);
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

void DeferredRows::SettleRow(Row& row) {
  const std::size_t first_col = FirstQuad(row);
  while (row.waiting != 0) {
    // Sources side by side, mostly all of them, are one run.
    const auto first = static_cast<std::size_t>(std::countr_zero(row.waiting));
    const auto count = static_cast<std::size_t>(std::countr_one(row.waiting >> first));
    for (std::size_t col = first_col; col < cols_; col += kQuad) {
      AddProducts(row.elements + col, &row.factors[first], Quads(col) + first, count, cols_ - col);
    }
    row.waiting &= ~(((1U << count) - 1) << first);
  }
  // The first quad may begin among the cleared elements.
  std::fill(row.elements + first_col, row.elements + row.cleared, Extended(0));
}

}  // namespace qorvex::inline QorvexMatrix::detail
