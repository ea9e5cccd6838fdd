#pragma once

// The shape of a matrix, and the checks that matrix routines share.

#include <array>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/errors.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/currency_shape.h"
#include "qorvex/matrix/shape.h"

namespace qorvex::inline QorvexMatrix::detail {

struct Shape {
  std::uint32_t rows = 0;
  std::uint32_t cols = 0;
  bool rectangular = false;

  [[nodiscard]] bool IsEmpty() const noexcept { return rows == 0 || cols == 0; }
  [[nodiscard]] bool HasAtMostOneLine() const noexcept { return rows <= 1 || cols <= 1; }
};

// Whether all rows have this length: then so do the union and the intersection of the bits of all
// lengths. Without branches, and reading handles only, it takes less than a cycle a row.
template <class T>
[[nodiscard]] bool HasRowsOfLength(const TQorMatrix<T>& matrix, std::size_t length) noexcept {
  constexpr std::size_t chains = 2;
  constexpr std::size_t block = 4 * chains;
  std::array<std::size_t, chains> any{length, length};
  std::array<std::size_t, chains> all{length, length};
  const TQorVector<T>* const rows = matrix.data();
  const auto add = [&](std::size_t row, std::size_t chain) {
    any[chain] |= rows[row].size();
    all[chain] &= rows[row].size();
  };
  std::size_t i = 0;
  for (; i + block <= matrix.size(); i += block) {
    for (std::size_t j = 0; j < block; ++j) add(i + j, j % chains);
  }
  for (; i < matrix.size(); ++i) {
    if (rows[i].size() != length) return false;
  }
  return (any[0] | any[1]) == (all[0] & all[1]);
}

// The shape that MatrixDimensions reports. compare_rows is the value of a shape switch.
template <class T>
[[nodiscard]] Shape ShapeOf(const TQorMatrix<T>& matrix, bool compare_rows) noexcept {
  Shape shape;
  shape.rows = static_cast<std::uint32_t>(matrix.size());
  if (!matrix.empty()) shape.cols = static_cast<std::uint32_t>(matrix[0].size());
  if (!compare_rows) {
    shape.rectangular = true;
    return shape;
  }
  if (shape.IsEmpty()) return shape;
  shape.rectangular = HasRowsOfLength(matrix, shape.cols);
  if (!shape.rectangular) shape.cols = 0;
  return shape;
}

// The same with the shape switch for the element type.
template <class T>
[[nodiscard]] Shape ShapeOf(const TQorMatrix<T>& matrix) noexcept {
  if constexpr (CurrencyElement<T>) {
    return ShapeOf(matrix, QorvexFinMatrix::QorMatrixRectangularCheck);
  } else {
    return ShapeOf(matrix, QorvexMatrix::QorMatrixRectangularCheck);
  }
}

// For routines that accept rows of different lengths.
template <class T>
void RequireRows(const TQorMatrix<T>& matrix) {
  if (matrix.empty()) RaiseMathError(rsMatrixIsEmpty);
}

inline void RequireElements(const Shape& shape) {
  if (shape.IsEmpty()) RaiseMathError(rsMatrixIsEmpty);
}

// Never fails after RequireElements, because a ragged matrix counts as having no columns.
inline void RequireRectangular(const Shape& shape) {
  if (!shape.rectangular) RaiseMathError(rsMatrixRect);
}

inline void RequireSquare(const Shape& shape) {
  if (!shape.rectangular || shape.rows != shape.cols) RaiseMathError(rsMatrixSqr);
}

inline void RequireRow(const Shape& shape, std::uint32_t row) {
  if (row >= shape.rows) RaiseMathError(rsInvalidRow);
}

inline void RequireCol(const Shape& shape, std::uint32_t col) {
  if (col >= shape.cols) RaiseMathError(rsInvalidCol);
}

// With the shape switch off the lengths of the rows have not been compared. A row that is too short
// must not be read beyond its end.
template <class T>
void RequireLength(const TQorVector<T>& row, std::size_t length) {
  if (row.size() < length) RaiseMathError(rsMatrixRect);
}

template <class T>
void RequireLengths(const TQorMatrix<T>& matrix, std::size_t length) {
  for (const TQorVector<T>& row : matrix) RequireLength(row, length);
}

// Requires a matrix that has elements and that ShapeOf reports as rectangular. For routines that
// then check indices, and last the lengths of the rows that they use.
template <class T>
Shape RequireRectangularShape(const TQorMatrix<T>& matrix) {
  const Shape shape = ShapeOf(matrix);
  RequireElements(shape);
  RequireRectangular(shape);
  return shape;
}

// The same, and requires that no row is shorter than the first.
template <class T>
Shape RequireRectangularMatrix(const TQorMatrix<T>& matrix) {
  const Shape shape = RequireRectangularShape(matrix);
  RequireLengths(matrix, shape.cols);
  return shape;
}

// The same for a square matrix. Returns its order.
template <class T>
std::size_t RequireSquareMatrix(const TQorMatrix<T>& matrix) {
  const Shape shape = ShapeOf(matrix);
  RequireElements(shape);
  RequireSquare(shape);
  RequireLengths(matrix, shape.cols);
  return shape.rows;
}

}  // namespace qorvex::inline QorvexMatrix::detail
