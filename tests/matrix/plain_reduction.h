#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::testing {

/// The reductions as loops over single elements, in the order of operations that is part of their
/// results: what the fast ones must agree with in every bit.
template <FloatElement T>
struct PlainReduction {
  TQorMatrix<T>& matrix;
  TQorMatrix<T>* inverse = nullptr;
  Extended determinant = 1;
  // The largest element in front of a pivot, or in a row without one, after Eliminate.
  Extended residue = 0;

  std::size_t Rows() const { return matrix.size(); }
  std::size_t Cols() const { return matrix[0].size(); }

  static void Swap(TQorMatrix<T>& m, std::size_t row1, std::size_t row2) {
    for (std::size_t j = 0; j < m[0].size(); ++j) std::swap(m[row1][j], m[row2][j]);
  }
  static void Scale(TQorMatrix<T>& m, std::size_t row, std::size_t from, Extended factor) {
    for (std::size_t j = from; j < m[0].size(); ++j) {
      m[row][j] = static_cast<T>(static_cast<Extended>(m[row][j]) * factor);
    }
  }
  static void Add(TQorMatrix<T>& m, std::size_t target, std::size_t source, Extended factor) {
    for (std::size_t j = 0; j < m[0].size(); ++j) {
      const Extended product = static_cast<Extended>(m[source][j]) * factor;
      m[target][j] = static_cast<T>(product + static_cast<Extended>(m[target][j]));
    }
  }
  void AddToBoth(std::size_t target, std::size_t source, Extended factor) {
    Add(matrix, target, source, factor);
    if (inverse != nullptr) Add(*inverse, target, source, factor);
  }

  void Eliminate() {
    std::vector<std::size_t> pivots;
    FindPivots(pivots);
    pivots.resize(Rows(), Cols());
    for (std::size_t r = 0; r < Rows(); ++r) {
      for (std::size_t c = 0; c < pivots[r]; ++c) {
        residue = std::max(residue, std::fabs(static_cast<Extended>(matrix[r][c])));
      }
    }
  }

  void FindPivots(std::vector<std::size_t>& pivots) {
    std::size_t pivot_row = 0;
    std::size_t pivot_col = 0;
    while (pivot_row < Rows() && pivot_col < Cols()) {
      bool found = false;
      Extended best = 0;
      std::size_t best_row = 0;
      for (; pivot_col < Cols(); ++pivot_col) {
        for (std::size_t r = pivot_row; r < Rows(); ++r) {
          const Extended x = matrix[r][pivot_col];
          if (FloatIsNotZero(x) && std::fabs(x) > best) {
            found = true;
            best = std::fabs(x);
            best_row = r;
          }
        }
        if (found) break;
      }
      if (!found) return;
      if (best_row != pivot_row) {
        Swap(matrix, pivot_row, best_row);
        if (inverse != nullptr) Swap(*inverse, pivot_row, best_row);
        determinant *= -1;
      }
      const Extended pivot = matrix[pivot_row][pivot_col];
      if (FloatIsNotZero(pivot - 1)) {
        Scale(matrix, pivot_row, pivot_col, 1 / pivot);
        if (inverse != nullptr) Scale(*inverse, pivot_row, 0, 1 / pivot);
        determinant *= pivot;
      }
      for (std::size_t r = pivot_row + 1; r < Rows(); ++r) {
        const Extended x = matrix[r][pivot_col];
        if (FloatIsNotZero(x)) AddToBoth(r, pivot_row, -x);
      }
      pivots.push_back(pivot_col);
      ++pivot_row;
      ++pivot_col;
    }
  }

  std::size_t Rank() const {
    std::size_t rank = 0;
    for (std::size_t r = 0; r < Rows(); ++r) {
      bool zero = true;
      for (const T x : std::as_const(matrix)[r]) zero &= FloatIsZero(x);
      if (!zero) ++rank;
    }
    return rank;
  }

  bool Invert() {
    Eliminate();
    if (Rank() != Rows()) return false;
    for (std::size_t c = Cols() - 1; c >= 1; --c) {
      for (std::size_t r = c; r-- > 0;) {
        const Extended x = matrix[r][c];
        if (FloatIsNotZero(x)) AddToBoth(r, c, -x);
      }
    }
    return true;
  }

  Extended Determinant() {
    Eliminate();
    for (std::size_t i = 0; i < Rows(); ++i) determinant *= static_cast<Extended>(matrix[i][i]);
    return determinant;
  }
};

}  // namespace qorvex::testing
