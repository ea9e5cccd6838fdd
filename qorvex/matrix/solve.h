#pragma once

/// @file
/// Systems of linear equations.
///
/// - Gaussian elimination in extended precision with the pivots of Inverse, and for each right-hand
///   side one step of iterative refinement, whose residual is summed in pairs of extended values.
///   Up to a condition of 1e9 every element of the solution is off by little more than its
///   rounding; docs/accuracy.md has the figures.
/// - Double and Single elements are converted to Extended first; the elements of the solution are
///   rounded to their type once, at the end.
/// - std::nullopt, whatever b is, if the elimination of the inverse in Extended finds no pivot for
///   a column, because all its remaining elements are at most QorTolerance in magnitude, or a pivot
///   that is NaN or infinite.
/// - If that elimination neglects anything, an element within QorTolerance or the difference of a
///   pivot from one, it is repeated without neglecting, and must not fail in the same ways. So all
///   elements beside the pivots count, however small they are.
/// - std::nullopt also if an element of the solution is NaN or infinite. So there is no solution
///   with a NaN anywhere in the matrix or in b, nor, at a tolerance of zero, with a pivot so small
///   that its reciprocal is infinite.
/// - The refinement may have no effect if a product of elements of the matrix and of x overflows,
///   or if all products of a row and their sum in b are below 1e-4900.
/// - EMathError, in this order: rsMatrixIsEmpty for a matrix a without rows or columns, or a ragged
///   one; rsMatrixSqr if it is not square; with the shape switch off rsMatrixRect if a row is
///   shorter than the first; the same for a matrix b, except rsMatrixSqr; rsSameDimensions if the
///   number of elements of a vector b, or of rows of a matrix b, differs from the rows of a.
/// - O(order^3) for the elimination and O(order^2) for each right-hand side, with working memory of
///   up to three extended matrices of that order and 600 bytes per row. For floating elements.
///
/// Source: Golub and Van Loan 2013, "Matrix Computations", 3.4 and 3.5.3; residuals as in Ogita,
/// Rump and Oishi 2005, "Accurate sum and dot product".

#include <initializer_list>
#include <optional>
#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/conversion.h"

namespace qorvex::inline QorvexMatrix {

/// The vector x for which a x = b. b is any contiguous range of the element type.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT std::optional<TQorVector<T>> Solve(
    const TQorMatrix<T>& a, VectorView<std::type_identity_t<T>> b);

/// The matrix x for which a x = b: each column of b is a right-hand side of its own. If one of them
/// has no solution, there is no result.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT std::optional<TQorMatrix<T>> Solve(const TQorMatrix<T>& a,
                                                               const TQorMatrix<T>& b);
/// The same for a matrix b in braces, which is given by its rows: Solve(a, {{3}, {5}}) has a matrix
/// as its result, Solve(a, {3, 5}) a vector. A single vector variable in braces, {v}, is ambiguous:
/// write v for a vector and TQorMatrix<T>{v} for a matrix.
template <FloatElement T>
[[nodiscard]] inline std::optional<TQorMatrix<T>> Solve(
    const TQorMatrix<T>& a,
    std::initializer_list<std::initializer_list<std::type_identity_t<T>>> b) {
  return Solve(a, MatrixFromRows(b));
}

}  // namespace qorvex::inline QorvexMatrix
