#pragma once

// The shape of a matrix, and the checks that matrix routines share. They run in the order in which
// each routine's comment lists its errors.

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

  [[nodiscard]] bool Empty() const noexcept { return rows == 0 || cols == 0; }
  [[nodiscard]] bool AtMostOneLine() const noexcept { return rows <= 1 || cols <= 1; }
};

// What MatrixDimensions reports. compare_rows is a shape switch.
template <class T>
[[nodiscard]] Shape ShapeOf(const TQorMatrix<T>& matrix, bool compare_rows) noexcept {
  Shape shape;
  shape.rows = static_cast<std::uint32_t>(matrix.size());
  if (!matrix.empty()) shape.cols = static_cast<std::uint32_t>(matrix[0].size());
  if (!compare_rows) {
    shape.rectangular = true;
    return shape;
  }
  if (shape.Empty()) return shape;
  for (const TQorVector<T>& row : matrix) {
    if (row.size() != shape.cols) {
      shape.cols = 0;
      return shape;
    }
  }
  shape.rectangular = true;
  return shape;
}

// The same with the switch of the unit that the elements belong to.
template <class T>
[[nodiscard]] Shape ShapeOf(const TQorMatrix<T>& matrix) noexcept {
  if constexpr (CurrencyElement<T>) {
    return ShapeOf(matrix, QorvexFinMatrix::QorMatrixRectangularCheck);
  } else {
    return ShapeOf(matrix, QorvexMatrix::QorMatrixRectangularCheck);
  }
}

// For routines that take rows of any lengths.
template <class T>
void RequireRows(const TQorMatrix<T>& matrix) {
  if (matrix.empty()) RaiseMathError(rsMatrixIsEmpty);
}

inline void RequireElements(const Shape& shape) {
  if (shape.Empty()) RaiseMathError(rsMatrixIsEmpty);
}

// Routines that ask for elements first never raise this: a ragged matrix has no columns.
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

// With the shape switch off nobody has compared the rows, and one that is shorter than the first
// must not be read beyond its end.
template <class T>
void RequireLength(const TQorVector<T>& row, std::size_t length) {
  if (row.size() < length) RaiseMathError(rsMatrixRect);
}

template <class T>
void RequireLengths(const TQorMatrix<T>& matrix, std::size_t length) {
  for (const TQorVector<T>& row : matrix) RequireLength(row, length);
}

// The shape of a matrix that has elements and, as far as ShapeOf looks, rows of one length. For
// routines that check indices next, and then the lengths of the rows that they touch.
template <class T>
Shape RequireRectangularShape(const TQorMatrix<T>& matrix) {
  const Shape shape = ShapeOf(matrix);
  RequireElements(shape);
  RequireRectangular(shape);
  return shape;
}

// The same for routines that touch all rows.
template <class T>
Shape RequireRectangularMatrix(const TQorMatrix<T>& matrix) {
  const Shape shape = RequireRectangularShape(matrix);
  RequireLengths(matrix, shape.cols);
  return shape;
}

// The same of a square matrix.
template <class T>
Shape RequireSquareMatrix(const TQorMatrix<T>& matrix) {
  const Shape shape = ShapeOf(matrix);
  RequireElements(shape);
  RequireSquare(shape);
  RequireLengths(matrix, shape.cols);
  return shape;
}

}  // namespace qorvex::inline QorvexMatrix::detail
