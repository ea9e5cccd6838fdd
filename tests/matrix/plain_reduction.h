#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

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
  // Makes an element zero that is not, by the row whose element in its column is one.
  void Clear(std::size_t row, std::size_t col, std::size_t source) {
    const Extended x = matrix[row][col];
    if (FloatIsZero(x)) return;
    Add(matrix, row, source, -x);
    if (inverse != nullptr) Add(*inverse, row, source, -x);
  }
  void NoteResidue(std::size_t row, std::size_t count) {
    for (std::size_t j = 0; j < count; ++j) {
      residue = std::max(residue, std::fabs(static_cast<Extended>(matrix[row][j])));
    }
  }

  void Eliminate() {
    std::size_t pivot_row = 0;
    for (std::size_t col = 0; col < Cols() && pivot_row < Rows(); ++col) {
      Extended largest = 0;
      std::size_t largest_row = 0;
      for (std::size_t r = pivot_row; r < Rows(); ++r) {
        const Extended magnitude = std::fabs(static_cast<Extended>(matrix[r][col]));
        if (FloatIsNotZero(magnitude) && magnitude > largest) {
          largest = magnitude;
          largest_row = r;
        }
      }
      if (largest == 0) continue;
      if (largest_row != pivot_row) {
        std::swap(matrix[pivot_row], matrix[largest_row]);
        if (inverse != nullptr) std::swap((*inverse)[pivot_row], (*inverse)[largest_row]);
        determinant *= -1;
      }
      const Extended pivot = matrix[pivot_row][col];
      if (FloatIsNotZero(pivot - 1)) {
        Scale(matrix, pivot_row, col, 1 / pivot);
        if (inverse != nullptr) Scale(*inverse, pivot_row, 0, 1 / pivot);
        determinant *= pivot;
      }
      NoteResidue(pivot_row, col);
      for (std::size_t r = pivot_row + 1; r < Rows(); ++r) Clear(r, col, pivot_row);
      ++pivot_row;
    }
    for (; pivot_row < Rows(); ++pivot_row) NoteResidue(pivot_row, Cols());
  }

  std::size_t Rank() const {
    return static_cast<std::size_t>(std::ranges::count_if(matrix, [](const TQorVector<T>& row) {
      return !std::ranges::all_of(row, [](T x) { return FloatIsZero(x); });
    }));
  }

  bool Invert() {
    Eliminate();
    if (Rank() != Rows()) return false;
    for (std::size_t c = Cols() - 1; c >= 1; --c) {
      for (std::size_t r = c; r-- > 0;) Clear(r, c, c);
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
