#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/reduction.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex::testing {

/// The reductions as plain loops, with the order of operations that is part of their results. The
/// results of the library must be bitwise identical.
template <FloatElement T>
struct PlainReduction {
  TQorMatrix<T> matrix;
  std::size_t rows = matrix.size();
  TQorMatrix<T> inverse = MatrixOf<T>(rows, rows, [](auto i, auto j) { return T(i == j); });
  Extended determinant = 1;  // except for the diagonal
  std::size_t rank = 0;
  bool finite_pivots = true;

  static void Scale(TQorVector<T>& row, std::size_t from, Extended factor) {
    for (std::size_t j = from; j < row.size(); ++j) row[j] = static_cast<T>(row[j] * factor);
  }
  static void Add(TQorVector<T>& target, const TQorVector<T>& source, std::size_t from,
                  Extended factor) {
    for (std::size_t j = from; j < target.size(); ++j)
      target[j] = static_cast<T>(source[j] * factor + target[j]);
  }
  // Eliminates an element with the row whose pivot is in its column.
  void Clear(std::size_t row, std::size_t col, std::size_t pivot_row) {
    const Extended x = std::exchange(matrix[row][col], T(0));
    if (FloatIsZero(x)) return;
    // In back substitution all elements to the right of the pivot are already zero.
    if (row > pivot_row) Add(matrix[row], matrix[pivot_row], col + 1, -x);
    Add(inverse[row], inverse[pivot_row], 0, -x);
  }

  // The row of the column's pivot, or the number of rows.
  std::size_t PivotRow(std::size_t col) const {
    std::size_t best = rows;
    for (std::size_t r = rows; r-- > rank;) {
      const Extended x = std::fabs(matrix[r][col]);
      if (FloatIsZero(x) || x == 0) continue;
      const Extended largest = best < rows ? matrix[best][col] : 0;
      if (std::isnan(x) || (!std::isnan(largest) && x >= std::fabs(largest))) best = r;
    }
    return best;
  }

  void Eliminate() {
    for (std::size_t col = 0; col < matrix[0].size() && rank < rows; ++col) {
      const std::size_t best = PivotRow(col);
      if (best == rows) {
        for (std::size_t r = rank; r < rows; ++r) matrix[r][col] = 0;
        continue;
      }
      if (best != rank) {
        std::swap(matrix[rank], matrix[best]);
        std::swap(inverse[rank], inverse[best]);
        determinant *= -1;
      }
      const Extended pivot = matrix[rank][col];
      finite_pivots &= std::isfinite(pivot);
      if (FloatIsNotZero(pivot - 1)) {
        Scale(matrix[rank], col, 1 / pivot);
        Scale(inverse[rank], 0, 1 / pivot);
        determinant *= pivot;
      }
      for (std::size_t r = rank + 1; r < rows; ++r) Clear(r, col, rank);
      ++rank;
    }
  }

  // After Eliminate.
  bool Invert() {
    if (rank != rows || !finite_pivots) return false;
    for (std::size_t c = rows - 1; c >= 1; --c) {
      for (std::size_t r = c; r-- > 0;) Clear(r, c, c);
    }
    return std::ranges::all_of(inverse, [](const TQorVector<T>& row) {
      return std::ranges::all_of(row, [](T x) { return std::isfinite(x); });
    });
  }
};

/// Expects that the reduced matrix, the rank and, for a square matrix, the inverse and the
/// determinant are bitwise those of the plain loops.
template <FloatElement T>
void ExpectWhatPlainLoopsGive(const TQorMatrix<T>& given) {
  PlainReduction<T> plain{CopyMatrix(given)};
  plain.Eliminate();
  auto matrix = CopyMatrix(given);
  std::uint32_t rank = 99;
  RowEchelonFormRank(matrix, rank);
  EXPECT_TRUE(SameBits(matrix, plain.matrix));
  EXPECT_EQ(rank, plain.rank);
  EXPECT_EQ(Rank(given), plain.rank);
  const std::size_t order = given.size();
  if (order != given[0].size()) return;

  matrix = CopyMatrix(given);
  for (std::size_t i = 0; i < order; ++i) plain.determinant *= plain.matrix[i][i];
  EXPECT_TRUE(SameBits(MatrixDeterminant(matrix), plain.determinant));

  matrix = CopyMatrix(given);
  TQorMatrix<T> inverse;
  EXPECT_EQ(MatrixInverse(matrix, inverse), plain.Invert());
  EXPECT_TRUE(SameBits(matrix, plain.matrix));
  EXPECT_TRUE(SameBits(inverse, plain.inverse));
}

}  // namespace qorvex::testing
