#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "qorvex/base/comparisons.h"

namespace qorvex::inline QorvexMatrix::detail {

// An observer for whom the row echelon form is all.
struct NoObserver {
  void Swapped(std::size_t, std::size_t) {}
  void Scaled(std::size_t, Extended /*pivot*/, Extended /*factor*/) {}
  void Added(std::size_t, std::size_t, Extended) {}
};

// What rounding leaves in front of the pivots, where elements count as zero.
//
// A row's residue is added to other rows along with the row and may grow by the size of the pivot
// each time. Up to the tolerance it stays. Beyond, it would end up in the rank and in the inverse,
// so from the first row on in which it shows there, all residue is set to zero. NaN is none: it
// came with the matrix.
template <class Rows>
class Residue {
 public:
  Residue(Rows& rows, std::size_t row_count) : rows_(rows) { counts_.reserve(row_count); }

  // Takes the next row, whose first elements are zero but for rounding.
  void Take(std::size_t count) {
    counts_.push_back(count);
    const std::size_t row = counts_.size() - 1;
    const auto residue = rows_.Elements(row).first(count);
    const auto grew = [](Extended x) { return std::fabs(x) > QorTolerance; };
    if (clears_) {
      Clear(row);
    } else if (std::ranges::any_of(residue, grew)) {
      clears_ = true;
      rows_.Settle();
      for (std::size_t earlier = 0; earlier <= row; ++earlier) Clear(earlier);
    }
  }

 private:
  void Clear(std::size_t row) {
    for (auto& x : rows_.Elements(row).first(counts_[row])) {
      if (!std::isnan(x)) x = 0;
    }
  }

  Rows& rows_;
  std::vector<std::size_t> counts_;
  bool clears_ = false;
};

// Gaussian elimination with partial pivoting to row echelon form, telling the observer each step
// after it is made. Zero means zero within QorTolerance: the pivot is the largest element of the
// leftmost column that is not zero at or below the pivot's row, the topmost of equals. Pivots that
// are not one already are scaled to it, from the pivot's column on; whole rows are added, so that
// residue in front of a pivot is carried along.
template <class Rows, class Observer>
void Eliminate(Rows& rows, std::size_t row_count, std::size_t col_count, Observer&& observer) {
  Residue residue(rows, row_count);
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
    residue.Take(col);
    for (std::size_t row = pivot_row + 1; row < row_count; ++row) {
      const Extended element = rows.At(row, col);
      if (FloatIsNotZero(element)) {
        rows.Add(row, pivot_row, -element);
        observer.Added(row, pivot_row, -element);
      }
    }
    ++pivot_row;
  }
  for (; pivot_row < row_count; ++pivot_row) residue.Take(col_count);
  rows.Settle();
}

}  // namespace qorvex::inline QorvexMatrix::detail
