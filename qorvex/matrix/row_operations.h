#pragma once

/// @file
/// The elementary row and column operations, in place.
///
/// They change elements and never exchange row buffers, so every handle of a row sees its new
/// contents. A buffer that several rows share is changed once for each of them.
///
/// Errors are EMathError, checked in this order before anything changes: rsMatrixIsEmpty for a
/// matrix without rows or columns, or a ragged one; rsInvalidRow or rsInvalidCol for an index
/// beyond the last; then rsMatrixRect when, with the shape switch off, a row that the operation
/// touches is shorter than the first. Floating elements are computed in extended precision and
/// rounded to their type once, when stored; NaN and infinities are what the processor makes of
/// them. Integers wrap around silently. With the shape switch on, each call compares the lengths of
/// all rows.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/factor_type.h"

namespace qorvex::inline QorvexMatrix {

/// Exchanges two rows element by element; the same index twice changes nothing. For all
/// elements. O(columns).
template <AnyElement T>
QORVEX_EXPORT void SwapMatrixRows(TQorMatrix<T>& matrix, std::uint32_t row1, std::uint32_t row2);

/// Exchanges two columns; the same index twice changes nothing. For all elements. O(rows).
template <AnyElement T>
QORVEX_EXPORT void SwapMatrixCols(TQorMatrix<T>& matrix, std::uint32_t col1, std::uint32_t col2);

/// Multiplies a row by a factor. The factor 1 returns at once, before any check. For Float, Double,
/// Single, Int64 and LInt elements. O(columns).
template <SignedArithmeticElement T>
QORVEX_EXPORT void ScaleMatrixRow(TQorMatrix<T>& matrix, std::uint32_t row,
                                  ScalarOf<FactorOf<T>> factor);

/// Multiplies a column by a factor. The factor 1 returns at once, before any check. For Float,
/// Double, Single, Int64 and LInt elements. O(rows).
template <SignedArithmeticElement T>
QORVEX_EXPORT void ScaleMatrixCol(TQorMatrix<T>& matrix, std::uint32_t col,
                                  ScalarOf<FactorOf<T>> factor);

/// Adds a row times a factor to the target row, which may be the same. For Float, Double, Single,
/// Int64 and LInt elements. O(columns).
template <SignedArithmeticElement T>
QORVEX_EXPORT void AddMatrixRows(TQorMatrix<T>& matrix, std::uint32_t target, std::uint32_t source,
                                 ScalarOf<FactorOf<T>> factor);

/// Adds a column times a factor to the target column, which may be the same. For Float, Double,
/// Single, Int64 and LInt elements. O(rows).
template <SignedArithmeticElement T>
QORVEX_EXPORT void AddMatrixCols(TQorMatrix<T>& matrix, std::uint32_t target, std::uint32_t source,
                                 ScalarOf<FactorOf<T>> factor);

}  // namespace qorvex::inline QorvexMatrix
