#pragma once

/// @file
/// The shape of a matrix, and the switch that decides whether routines compare the lengths of rows.
///
/// Shapes are asked for here and nowhere else, so that every matrix routine agrees on what is empty
/// and what is rectangular. None of these routines raises; all but the two counts work for all
/// elements. Currency matrices obey the switch of the unit QorvexFinMatrix. Counts are of 32 bits:
/// a matrix has fewer than 2^32 rows and columns.

#include <atomic>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// Whether MatrixDimensions, and through it every matrix routine, compares the lengths of all rows.
/// Initially true; a program may turn it off for speed when it knows that its matrices are
/// rectangular. The row reductions clear it while they run, for all threads, and restore what it
/// was before, whatever a program sets meanwhile. A ragged matrix stays safe with the switch off: a
/// routine that would read beyond the end of a row raises EMathError with rsMatrixRect.
extern QORVEX_EXPORT std::atomic<bool> QorMatrixRectangularCheck;

/// The number of rows. O(1).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t MatrixRows(const TQorMatrix<T>& matrix) noexcept;

/// The length of the first row; 0 for a matrix without rows. O(1).
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t MatrixCols(const TQorMatrix<T>& matrix) noexcept;

/// Sets rows and cols to the counts above, and rectangular to true when the matrix has elements and
/// all rows have one length. A ragged matrix gives 0 columns. With QorMatrixRectangularCheck off
/// rectangular is always true, even for an empty matrix, and cols is the length of the first row.
/// O(rows), or O(1) with the switch off.
template <AnyElement T>
QORVEX_EXPORT void MatrixDimensions(const TQorMatrix<T>& matrix, std::uint32_t& rows,
                                    std::uint32_t& cols, bool& rectangular) noexcept;

/// True when the matrix has rows and all of them have one length, which may be 0: unlike
/// MatrixDimensions it takes rows without elements for rectangular, and it does not ask the switch.
/// O(rows).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixIsRectangular(const TQorMatrix<T>& matrix) noexcept;

/// True when MatrixDimensions finds the matrix rectangular with as many rows as columns. An empty
/// matrix is square only with the switch off. O(rows).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixIsSquare(const TQorMatrix<T>& matrix) noexcept;

/// True when MatrixDimensions finds both matrices rectangular, with equal counts. Two empty ones
/// have the same dimensions only with the switch off. O(rows).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT bool MatricesSameDimensions(const TQorMatrix<T>& a,
                                                        const TQorMatrix<T>& b) noexcept;

}  // namespace qorvex::inline QorvexMatrix
