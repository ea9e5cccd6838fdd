#pragma once

/// @file
/// Row reduction, rank, inverse and determinant by Gaussian elimination with partial pivoting.
///
/// All four routines work on the caller's matrix and leave it reduced; pass a copy (CopyMatrix) to
/// keep it. An element counts as zero when its magnitude is at most QorTolerance, which is
/// absolute: raise it for large or badly scaled elements, lower it for tiny ones. Rounding may hide
/// that a matrix is singular: docs/accuracy.md has the figures.
///
/// Computation is in extended precision; Double and Single matrices round each element once a step.
/// Whole rows are added, and with them the residue that rounding leaves in front of the pivots. Up
/// to the tolerance it stays in the reduced matrix; once any grows beyond, all is set to zero. NaN
/// and infinite elements spread as the processor computes them. Rows are changed in their buffers,
/// so every handle of a row sees it reduced; of rows of the matrix that share a buffer the first
/// keeps it and the others get their own.
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

/// Turns the matrix into a row echelon form: each row begins, within the tolerance, with a one that
/// is further right than that of the row above, and rows of zeros come last. What is above a
/// leading one stays. The elements of a column are candidates for its pivot by magnitude; the
/// topmost of equal ones is taken.
template <FloatElement T>
QORVEX_EXPORT void RowEchelonForm(TQorMatrix<T>& matrix);

/// RowEchelonForm, and sets rank to the number of rows that are not zero in it. The rank is 0 after
/// an error.
template <FloatElement T>
QORVEX_EXPORT void RowEchelonFormRank(TQorMatrix<T>& matrix, std::uint32_t& rank);

/// Sets inverse to the inverse matrix and returns true, leaving in matrix the identity but for
/// rounding. Returns false for a singular matrix, which is left in row echelon form; inverse is
/// then a matrix that means nothing. Both may be the same variable, which holds what inverse would.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixInverse(TQorMatrix<T>& matrix, TQorMatrix<T>& inverse);

/// The determinant: the product of the pivots, and of -1 for each exchange of rows, in the order in
/// which they come up, and of the diagonal that the elimination leaves. A singular matrix gives
/// zero or, since zero means zero within the tolerance, a tiny number. Leaves the matrix in row
/// echelon form.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT Extended MatrixDeterminant(TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
