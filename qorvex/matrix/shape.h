#pragma once

/// @file
/// The shape of a matrix, and the switch that decides whether routines compare the lengths of rows.
///
/// - All matrix routines use the same rules for what is empty and what is rectangular.
/// - Currency matrices use the switch of the unit QorvexFinMatrix.
/// - No errors. A matrix has fewer than 2^32 rows and columns.
/// - MatrixRows and MatrixCols are for all numeric element types, the others for all element types.

#include <atomic>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// Whether MatrixDimensions, and with it every routine for numeric matrices, compares the lengths
/// of all rows. Initially true.
///
/// - A program whose matrices are rectangular may turn it off to save time.
/// - With the switch off ragged matrices are still safe: a routine that would access elements
///   beyond the end of a row raises EMathError with rsMatrixRect instead.
/// - Row reductions turn it off for all threads while they run. Afterwards they restore the value
///   from before, even if a program has set another value meanwhile.
extern QORVEX_EXPORT std::atomic<bool> QorMatrixRectangularCheck;

/// The number of rows. O(1).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t MatrixRows(const TQorMatrix<T>& matrix) noexcept;

/// The length of the first row; 0 for a matrix without rows. O(1).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t MatrixCols(const TQorMatrix<T>& matrix) noexcept;

/// Determines the shape.
///
/// - rows is MatrixRows. cols is MatrixCols, or 0 if the rows differ in length.
/// - rectangular is true if the matrix has elements and all rows have the same length.
/// - With QorMatrixRectangularCheck off rectangular is always true, even for an empty matrix, and
///   cols is MatrixCols.
/// - O(rows), or O(1) with the switch off.
template <AnyElement T>
QORVEX_EXPORT void MatrixDimensions(const TQorMatrix<T>& matrix, std::uint32_t& rows,
                                    std::uint32_t& cols, bool& rectangular) noexcept;

/// True if the matrix has rows and all rows have the same length. Unlike MatrixDimensions it
/// ignores the switch, and it is true for rows of length 0. O(rows).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixIsRectangular(const TQorMatrix<T>& matrix) noexcept;

/// True if MatrixDimensions reports a rectangular matrix with as many rows as columns. An empty
/// matrix is square only with the switch off. O(rows).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixIsSquare(const TQorMatrix<T>& matrix) noexcept;

/// True if MatrixDimensions reports two rectangular matrices with the same numbers of rows and
/// columns. Two empty matrices have the same dimensions only with the switch off. O(rows).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT bool MatricesSameDimensions(const TQorMatrix<T>& a,
                                                        const TQorMatrix<T>& b) noexcept;

}  // namespace qorvex::inline QorvexMatrix
