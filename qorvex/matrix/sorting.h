#pragma once

/// @file
/// Reordering the rows of a matrix by one of its columns, and the columns by one of its rows.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// Sorts the rows by their elements in one column, or the columns by their elements in one row.
///
/// - Keys are compared exactly, without tolerance. NaN is last in both orders. The order of rows or
///   columns with equal keys is unspecified.
/// - Contents are moved, row buffers are not exchanged. So the change is seen through every handle
///   of a row's buffer.
/// - Rows that share a buffer stay equal, so they may be out of order afterwards; no contents are
///   lost. Sorting columns permutes a shared buffer once for each of its rows.
/// - If MatrixDimensions reports at most one row or at most one column, nothing happens, whatever
///   the index. With the shape switch on this includes ragged matrices.
/// - Otherwise EMathError, in this order: rsInvalidCol or rsInvalidRow if the index is out of
///   range; with the shape switch off rsMatrixRect if a row is shorter than the first. An error, or
///   running out of memory, leaves the matrix unchanged.
/// - Keys are sorted as by QSortVector, in O(n log n) or better, with 36 bytes of memory per key.
///   Then every element is moved once, in O(number of elements): rows along the cycles of the
///   permutation, with one additional row of memory (Knuth 1998, "The Art of Computer Programming",
///   volume 3, 5.2).
/// - For all element types.
template <AnyElement T>
QORVEX_EXPORT void QSortMatrixRowsOnCol(TQorMatrix<T>& matrix, std::uint32_t col, bool ascending);
template <AnyElement T>
QORVEX_EXPORT void QSortMatrixColsOnRow(TQorMatrix<T>& matrix, std::uint32_t row, bool ascending);
/// @}

}  // namespace qorvex::inline QorvexMatrix
