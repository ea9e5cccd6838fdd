#pragma once

/// @file
/// The elementary row and column operations, in place.
///
/// - Elements are changed, row buffers are not exchanged. So the change is seen through every
///   handle of a row's buffer. A buffer that several rows share is changed once for each of them.
/// - Floating elements are computed in extended precision and rounded once to their type. Integers
///   wrap around silently.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - EMathError, in this order and before anything is changed: rsMatrixIsEmpty for a matrix without
///   rows or columns, or a ragged one; rsInvalidRow or rsInvalidCol if an index is out of range;
///   with the shape switch off rsMatrixRect if a row that the operation uses is shorter than the
///   first.
/// - The costs are those of the operation. With the shape switch on each call also compares the
///   lengths of all rows, in O(rows).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/factor_type.h"

namespace qorvex::inline QorvexMatrix {

/// Exchanges two rows element by element. O(columns). For all element types.
template <AnyElement T>
QORVEX_EXPORT void SwapMatrixRows(TQorMatrix<T>& matrix, std::uint32_t row1, std::uint32_t row2);

/// Exchanges two columns. O(rows). For all element types.
template <AnyElement T>
QORVEX_EXPORT void SwapMatrixCols(TQorMatrix<T>& matrix, std::uint32_t col1, std::uint32_t col2);

/// Multiplies a row by a factor. With factor 1 it returns at once, without any check. O(columns).
/// For floating elements, int64 and int32.
template <SignedArithmeticElement T>
QORVEX_EXPORT void ScaleMatrixRow(TQorMatrix<T>& matrix, std::uint32_t row,
                                  ScalarOf<FactorOf<T>> factor);

/// Multiplies a column by a factor. With factor 1 it returns at once, without any check. O(rows).
/// For floating elements, int64 and int32.
template <SignedArithmeticElement T>
QORVEX_EXPORT void ScaleMatrixCol(TQorMatrix<T>& matrix, std::uint32_t col,
                                  ScalarOf<FactorOf<T>> factor);

/// Adds factor * source row to the target row, which may be the same row. O(columns). For floating
/// elements, int64 and int32.
template <SignedArithmeticElement T>
QORVEX_EXPORT void AddMatrixRows(TQorMatrix<T>& matrix, std::uint32_t target, std::uint32_t source,
                                 ScalarOf<FactorOf<T>> factor);

/// Adds factor * source column to the target column, which may be the same column. O(rows). For
/// floating elements, int64 and int32.
template <SignedArithmeticElement T>
QORVEX_EXPORT void AddMatrixCols(TQorMatrix<T>& matrix, std::uint32_t target, std::uint32_t source,
                                 ScalarOf<FactorOf<T>> factor);

}  // namespace qorvex::inline QorvexMatrix
