#pragma once

/// @file
/// Row reduction, rank, inverse and determinant by Gaussian elimination with partial pivoting.
///
/// All four routines work on the caller's matrix and leave it reduced; pass a copy (CopyMatrix) to
/// keep it. An element counts as zero when its magnitude is at most QorTolerance, which is
/// absolute: raise it for large or badly scaled elements, lower it for tiny ones. Rounding may hide
/// that a matrix is singular: docs/accuracy.md has the figures.
///
/// - The pivot of a column is its largest element in magnitude, at or below the pivot's row, that
///   is not zero; the topmost of equal ones. The topmost NaN goes before all others.
/// - A pivot p that is not one within the tolerance is scaled to p * (1 / p), and its row with it.
/// - What is below a pivot, or below the last one in a column without a pivot, is set to +0; what
///   is above a pivot too, when a matrix is inverted. So the rank is the number of pivots, and all
///   rows after the last pivot's are +0.
/// - Computation is in extended precision; Double and Single matrices round each element once a
///   step. NaN and infinite elements spread as the processor computes them.
/// - Rows are changed in their buffers, so every handle of a row sees it reduced; of rows of the
///   matrix that share a buffer the first keeps it and the others get their own.
///
/// Errors are EMathError, checked before anything changes: rsMatrixIsEmpty for a matrix without
/// rows or columns, or a ragged one; rsMatrixSqr where a square matrix is needed; then rsMatrixRect
/// when, with the shape switch off, a row is shorter than the first. Lack of memory leaves all
/// elements as they are, too. The shape switch is off while a reduction runs and is restored when
/// it ends, however it ends.
///
/// O(rows x columns x the smaller of both), with working memory of up to 180 bytes a row and 130 a
/// column; an inverse takes that twice. For floating elements. Golub and Van Loan 2013, "Matrix
/// Computations", 3.4, describe the elimination with partial pivoting.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// Turns the matrix into a row echelon form: each row begins, after zeros, with a one (within the
/// tolerance) that is further right than that of the row above, and rows of zeros come last. What
/// is above a leading one stays. A pivot that is NaN or infinite leaves NaN in place of the one.
template <FloatElement T>
QORVEX_EXPORT void RowEchelonForm(TQorMatrix<T>& matrix);

/// RowEchelonForm, and sets rank to the number of pivots: of the rows that are not zero in it. The
/// rank is 0 after an error.
template <FloatElement T>
QORVEX_EXPORT void RowEchelonFormRank(TQorMatrix<T>& matrix, std::uint32_t& rank);

/// Sets inverse to the inverse matrix and returns true; matrix is then exactly zero beside its
/// diagonal and one within the tolerance on it. Returns false when the rank is below the order,
/// when a pivot is NaN or infinite, and when an element of the inverse would be: so a matrix with a
/// NaN has none. The matrix is then reduced as far as it went, and inverse holds a matrix that
/// means nothing. Both may be the same variable, which holds what inverse would.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixInverse(TQorMatrix<T>& matrix, TQorMatrix<T>& inverse);

/// The determinant: the product of the pivots, and of -1 for each exchange of rows, in the order in
/// which they come up, and of the diagonal that the elimination leaves. Exactly zero when the rank
/// is below the order, unless the product of the pivots overflows, which gives NaN. NaN when a
/// pivot is NaN or infinite; a NaN that no pivot meets plays no part: [[1, NaN], [0, 1]] has 1.
/// Leaves the matrix in row echelon form.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT Extended MatrixDeterminant(TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
