#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::testing {

/// The reductions as plain loops, with the order of operations that is part of their results. The
/// results of the library must be bitwise identical.
template <FloatElement T>
struct PlainReduction {
  TQorMatrix<T>& matrix;
  TQorMatrix<T>* inverse = nullptr;
  Extended determinant = 1;
  std::size_t rank = 0;
  bool finite_pivots = true;

  std::size_t Rows() const { return matrix.size(); }
  std::size_t Cols() const { return matrix[0].size(); }

  static void Scale(TQorMatrix<T>& m, std::size_t row, std::size_t from, Extended factor) {
    for (std::size_t j = from; j < m[0].size(); ++j) {
      m[row][j] = static_cast<T>(static_cast<Extended>(m[row][j]) * factor);
    }
  }
  static void Add(TQorMatrix<T>& m, std::size_t target, std::size_t source, std::size_t from,
                  Extended factor) {
    for (std::size_t j = from; j < m[0].size(); ++j) {
      const Extended product = static_cast<Extended>(m[source][j]) * factor;
      m[target][j] = static_cast<T>(product + static_cast<Extended>(m[target][j]));
    }
  }
  // Eliminates an element with the row whose pivot is in its column.
  void Clear(std::size_t row, std::size_t col, std::size_t pivot_row) {
    const Extended x = matrix[row][col];
    matrix[row][col] = 0;
    if (FloatIsZero(x)) return;
    // In back substitution all elements to the right of the pivot are already zero.
    if (row > pivot_row) Add(matrix, row, pivot_row, col + 1, -x);
    if (inverse != nullptr) Add(*inverse, row, pivot_row, 0, -x);
  }

  // The row of the column's pivot, or the number of rows.
  std::size_t PivotRow(std::size_t col) const {
    std::size_t best = Rows();
    for (std::size_t r = Rows(); r-- > rank;) {
      const Extended x = std::fabs(static_cast<Extended>(matrix[r][col]));
      if (FloatIsZero(x)) continue;
      const Extended largest = best < Rows() ? matrix[best][col] : 0;
      if (std::isnan(x) || (!std::isnan(largest) && x >= std::fabs(largest))) best = r;
    }
    return best;
  }

  void Eliminate() {
    for (std::size_t col = 0; col < Cols() && rank < Rows(); ++col) {
      const std::size_t best = PivotRow(col);
      if (best == Rows()) {
        for (std::size_t r = rank; r < Rows(); ++r) matrix[r][col] = 0;
        continue;
      }
      if (best != rank) {
        std::swap(matrix[rank], matrix[best]);
        if (inverse != nullptr) std::swap((*inverse)[rank], (*inverse)[best]);
        determinant *= -1;
      }
      const Extended pivot = matrix[rank][col];
      finite_pivots &= std::isfinite(pivot);
      if (FloatIsNotZero(pivot - 1)) {
        Scale(matrix, rank, col, 1 / pivot);
        if (inverse != nullptr) Scale(*inverse, rank, 0, 1 / pivot);
        determinant *= pivot;
      }
      for (std::size_t r = rank + 1; r < Rows(); ++r) Clear(r, col, rank);
      ++rank;
    }
  }

  bool Invert() {
    Eliminate();
    if (rank != Rows() || !finite_pivots) return false;
    for (std::size_t c = Cols() - 1; c >= 1; --c) {
      for (std::size_t r = c; r-- > 0;) Clear(r, c, c);
    }
    return std::ranges::all_of(*inverse, [](const TQorVector<T>& row) {
      return std::ranges::all_of(row, [](T x) { return std::isfinite(x); });
    });
  }

  Extended Determinant() {
    Eliminate();
    for (std::size_t i = 0; i < Rows(); ++i) determinant *= static_cast<Extended>(matrix[i][i]);
    return determinant;
  }
};

}  // namespace qorvex::testing
