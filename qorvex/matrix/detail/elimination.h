#pragma once

#include <cmath>
#include <concepts>
#include <cstddef>

#include "qorvex/base/comparisons.h"

namespace qorvex::inline QorvexMatrix::detail {

// Is notified of the steps of an elimination. This one ignores them; the others derive from it.
struct Observer {
  // True if an element that should be zero, or the difference of a pivot from one, is so small that
  // no step is needed.
  [[nodiscard]] static bool IsNegligible(Extended x) { return FloatIsZero(x); }
  void Swapped(std::size_t, std::size_t) {}
  void Scaled(std::size_t, Extended /*pivot*/, Extended /*factor*/) {}
  void Added(std::size_t, std::size_t, Extended) {}
};

// The row of the column's pivot, from first_row on: the topmost NaN, otherwise the element of
// largest magnitude that is not zero within QorTolerance, the topmost of several. row_count if
// all are zero.
template <class Rows>
std::size_t FindPivot(const Rows& rows, std::size_t first_row, std::size_t row_count,
                      std::size_t col) {
  std::size_t best_row = row_count;
  Extended largest = 0;
  for (std::size_t row = first_row; row < row_count; ++row) {
    const Extended magnitude = std::fabs(rows.At(row, col));
    if (magnitude <= largest) continue;
    if (std::isnan(magnitude)) return row;
    if (FloatIsNotZero(magnitude)) {
      best_row = row;
      largest = magnitude;
    }
  }
  return best_row;
}

// Gaussian elimination with partial pivoting to row echelon form. Notifies the observer after each
// step. Returns the rank, which is the number of pivots.
//
// Rows whose pivot is not one are scaled. Elements to be eliminated are set to +0 instead of being
// computed, because rounding would leave residues that grow from pivot to pivot. So rows are added
// only to the right of the pivot, and all rows below the last pivot are +0.
template <class Rows, std::derived_from<Observer> SomeObserver>
std::size_t Eliminate(Rows& rows, std::size_t row_count, std::size_t col_count,
                      SomeObserver& observer) {
  std::size_t pivot_row = 0;
  for (std::size_t col = 0; col < col_count && pivot_row < row_count; ++col) {
    rows.BeginColumn(col);
    const std::size_t best_row = FindPivot(rows, pivot_row, row_count, col);
    if (best_row == row_count) {
      for (std::size_t row = pivot_row; row < row_count; ++row) rows.Clear(row, col);
      continue;
    }
    if (best_row != pivot_row) {
      rows.Swap(pivot_row, best_row);
      observer.Swapped(pivot_row, best_row);
    }
    const Extended pivot = rows.At(pivot_row, col);
    if (!observer.IsNegligible(pivot - 1)) {
      const Extended factor = 1 / pivot;
      rows.Scale(pivot_row, factor);
      observer.Scaled(pivot_row, pivot, factor);
    }
    for (std::size_t row = pivot_row + 1; row < row_count; ++row) {
      const Extended element = rows.At(row, col);
      rows.Clear(row, col);
      if (!observer.IsNegligible(element)) {
        rows.Add(row, pivot_row, -element);
        observer.Added(row, pivot_row, -element);
      }
    }
    ++pivot_row;
  }
  rows.Flush();
  return pivot_row;
}

}  // namespace qorvex::inline QorvexMatrix::detail
