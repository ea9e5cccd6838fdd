#pragma once

/// @file
/// The product of two matrices.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The matrix product: element [i][j] is the sum of a[i][k] * b[k][j], added in ascending order of
/// k, starting from zero.
///
/// - Each product and each sum is rounded to extended precision. In Double and Single matrices each
///   sum is then rounded to the element type.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - Both arguments may be the same matrix.
/// - EMathError, in this order: with the shape switch on rsMatrixRect if a matrix is ragged or
///   empty; rsMatrixIsEmpty if a matrix has no rows; rsMatrixMult if the number of columns of a
///   differs from the number of rows of b; with the shape switch off rsMatrixRect if a row is
///   shorter than the first row of its matrix.
/// - O(rows of a x columns of a x columns of b), with up to 256 bytes of working memory per column
///   of a. For floating elements.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> MultiplyMatrices(const TQorMatrix<T>& a,
                                                           const TQorMatrix<T>& b);

}  // namespace qorvex::inline QorvexMatrix
