#pragma once

#include <cmath>
#include <cstddef>

#include "qorvex/base/comparisons.h"

namespace qorvex::inline QorvexMatrix::detail {

// An observer for whom the row echelon form is all.
struct NoObserver {
  void Swapped(std::size_t, std::size_t) {}
  void Scaled(std::size_t, Extended /*pivot*/, Extended /*factor*/) {}
  void Added(std::size_t, std::size_t, Extended) {}
};

// Gaussian elimination with partial pivoting to row echelon form, telling the observer each step
// after it is made. Zero means zero within QorTolerance: the pivot is the largest element of the
// leftmost column that is not zero at or below the pivot's row, the topmost of equals. Pivots that
// are not one already are scaled to it, from the pivot's column on; whole rows are added, so that
// what rounding left in front of a pivot is carried along.
template <class Rows, class Observer>
void Eliminate(Rows& rows, std::size_t row_count, std::size_t col_count, Observer&& observer) {
  std::size_t pivot_row = 0;
  for (std::size_t col = 0; col < col_count && pivot_row < row_count; ++col) {
    std::size_t best_row = row_count;
    Extended largest = 0;
    for (std::size_t row = pivot_row; row < row_count; ++row) {
      const Extended magnitude = std::fabs(rows.At(row, col));
      if (FloatIsNotZero(magnitude) && magnitude > largest) {
        best_row = row;
        largest = magnitude;
      }
    }
    if (best_row == row_count) continue;

    if (best_row != pivot_row) {
      rows.Swap(pivot_row, best_row);
      observer.Swapped(pivot_row, best_row);
    }
    const Extended pivot = rows.At(pivot_row, col);
    if (FloatIsNotZero(pivot - 1)) {
      const Extended factor = 1 / pivot;
      rows.Scale(pivot_row, col, factor);
      observer.Scaled(pivot_row, pivot, factor);
    }
    for (std::size_t row = pivot_row + 1; row < row_count; ++row) {
      const Extended element = rows.At(row, col);
      if (FloatIsNotZero(element)) {
        rows.Add(row, pivot_row, -element);
        observer.Added(row, pivot_row, -element);
      }
    }
    ++pivot_row;
  }
  rows.Settle();
}

}  // namespace qorvex::inline QorvexMatrix::detail
