#pragma once

/// @file
/// Reordering the rows of a matrix by one of its columns, and the columns by one of its rows.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// Brings the rows into the order of their elements in one column, or the columns into the order of
/// their elements in one row. Keys are compared exactly, without tolerance; NaN goes last,
/// ascending or descending. Callers must not rely on the order of rows or columns with equal keys.
///
/// Row buffers stay where they are and their contents move, seen through every handle of them. Rows
/// of the matrix that share a buffer stay equal and so may end out of order, though no contents are
/// lost; a column sort permutes a shared buffer once for each of its rows.
///
/// Where MatrixDimensions counts a single row or column, or none, the matrix is left alone whatever
/// the index; with the shape switch on a ragged matrix is among them. Otherwise EMathError:
/// rsInvalidCol or rsInvalidRow for an index beyond the last; then rsMatrixRect when, with the
/// shape switch off, a row is shorter than the first. A raise, or lack of memory, leaves the matrix
/// as it is.
///
/// The keys are sorted as by QSortVector, in O(n log n) or better and with 36 bytes of memory a key
/// and a row for scratch; then the elements are moved once, O(elements): rows follow the cycles of
/// the permutation through one scratch row (Knuth 1998, "The Art of Computer Programming", volume
/// 3, 5.2). For all elements.
template <AnyElement T>
QORVEX_EXPORT void QSortMatrixRowsOnCol(TQorMatrix<T>& matrix, std::uint32_t col, bool ascending);
template <AnyElement T>
QORVEX_EXPORT void QSortMatrixColsOnRow(TQorMatrix<T>& matrix, std::uint32_t row, bool ascending);
/// @}

}  // namespace qorvex::inline QorvexMatrix
