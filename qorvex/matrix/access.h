#pragma once

/// @file
/// Moving single rows and columns between a matrix and a vector. All for all elements.
///
/// Where MatrixDimensions counts a single row or column, or none, the matrix is left alone whatever
/// the index: the vector that comes out is empty, nothing is written, and nothing raises. With the
/// shape switch on a ragged matrix is among them, since it counts as having no columns.
///
/// Otherwise EMathError, before anything is written: rsInvalidRow or rsInvalidCol for an index
/// beyond the last; then rsMatrixRect when, with the shape switch off, a row that is read or
/// written is shorter than the first.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A copy of one row, as long as the matrix has columns, or of one column, as long as it has rows.
/// O(rows + columns).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> ExtractMatrixRow(const TQorMatrix<T>& matrix,
                                                           std::uint32_t row);
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> ExtractMatrixCol(const TQorMatrix<T>& matrix,
                                                           std::uint32_t col);
/// @}

/// @{
/// Writes the elements of the vector into one row or one column, in ascending order, and the fill
/// value where the vector is too short; what it has in excess is left out. The change is seen
/// through every handle of a row's buffer. O(rows + columns).
template <AnyElement T>
QORVEX_EXPORT void OverwriteMatrixRow(TQorMatrix<T>& matrix, std::uint32_t row,
                                      const TQorVector<T>& vector, ScalarOf<T> fill);
template <AnyElement T>
QORVEX_EXPORT void OverwriteMatrixCol(TQorMatrix<T>& matrix, std::uint32_t col,
                                      const TQorVector<T>& vector, ScalarOf<T> fill);
/// @}

}  // namespace qorvex::inline QorvexMatrix
