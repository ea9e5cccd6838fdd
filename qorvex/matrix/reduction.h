#pragma once

/// @file
/// Row reduction, rank, inverse and determinant by Gaussian elimination with partial pivoting.
///
/// Inverse, Determinant, Rank and RowEchelon work on a copy. The other four routines reduce the
/// caller's matrix in place; their figures are the same.
///
/// - An element counts as zero if its magnitude is at most QorTolerance. The tolerance is absolute:
///   raise it for large or badly scaled elements, lower it for tiny ones. Because of rounding, a
///   singular matrix may not be recognised as such: docs/accuracy.md has the figures.
/// - The pivot of a column is, in the pivot's row or below, the element of largest magnitude that
///   is not zero, the topmost of several. The topmost NaN takes precedence over all other elements.
/// - A pivot p that is not one within the tolerance is scaled to p * (1 / p), together with its
///   row.
/// - Elements below a pivot are set to +0, and so are all remaining elements of a column without a
///   pivot; in an inversion also the elements above a pivot. So the rank is the number of pivots,
///   and all elements in rows below the last pivot are +0.
/// - Computations are in extended precision; elements of Double and Single matrices are rounded to
///   their type in each step. NaN and infinities propagate as in IEEE 754 arithmetic.
/// - A change in place is seen through every handle of a row's buffer. If rows of the matrix share
///   a buffer, the first keeps it and the others get their own.
/// - EMathError, in this order and before anything is changed: rsMatrixIsEmpty for a matrix without
///   rows or columns, or a ragged one; rsMatrixSqr if a square matrix is required; with the shape
///   switch off rsMatrixRect if a row is shorter than the first. Running out of memory changes no
///   element either.
/// - The shape switch is off during a reduction and is restored at its end, also after an
///   exception.
/// - O(rows x columns x min(rows, columns)), with working memory of about 150 bytes per row and a
///   bit per element, twice as much for an inverse, and the copy. For floating elements.
///
/// Source: Gaussian elimination with partial pivoting as in Golub and Van Loan 2013, "Matrix
/// Computations", 3.4.

#include <cstdint>
#include <optional>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The inverse matrix, or std::nullopt if MatrixInverse would return false: if the matrix is
/// singular, or a pivot or an element of the inverse is NaN or infinite.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT std::optional<TQorMatrix<T>> Inverse(const TQorMatrix<T>& matrix);

/// The determinant, as MatrixDeterminant computes it.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT Extended Determinant(const TQorMatrix<T>& matrix);

/// The rank, which is the number of pivots.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t Rank(const TQorMatrix<T>& matrix);

/// The row echelon form that RowEchelonForm describes.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> RowEchelon(const TQorMatrix<T>& matrix);

/// Transforms the matrix to row echelon form: the first non-zero element of each row is one within
/// the tolerance and is to the right of that of the row above; rows of zeros are last. Elements
/// above the leading ones are not eliminated. A pivot that is NaN or infinite becomes NaN instead
/// of one.
template <FloatElement T>
QORVEX_EXPORT void RowEchelonForm(TQorMatrix<T>& matrix);

/// The same as RowEchelonForm, and sets rank to the number of pivots, which is the number of
/// non-zero rows of the result. After an error rank is 0.
template <FloatElement T>
QORVEX_EXPORT void RowEchelonFormRank(TQorMatrix<T>& matrix, std::uint32_t& rank);

/// Sets inverse to the inverse matrix.
///
/// - Returns true if there is an inverse. Then the diagonal of matrix is one within the tolerance,
///   and all other elements are zero.
/// - Returns false if the rank is less than the order, or if a pivot or an element of the inverse
///   is NaN or infinite, as for any matrix with a NaN. Then matrix is only partly reduced, and
///   inverse has no meaningful value.
/// - Both arguments may be the same variable, which receives the inverse.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixInverse(TQorMatrix<T>& matrix, TQorMatrix<T>& inverse);

/// The determinant. The matrix is transformed to row echelon form.
///
/// - Computed as the product of the pivots and of -1 for each exchange of rows, in the order of
///   their occurrence, and then of the diagonal elements of the echelon form.
/// - Exactly zero if the rank is less than the order, unless the product of the pivots overflows;
///   then the result is NaN.
/// - NaN if a pivot is NaN or infinite. A NaN elsewhere may not affect the result: the determinant
///   of [[1, NaN], [0, 1]] is 1.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT Extended MatrixDeterminant(TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
