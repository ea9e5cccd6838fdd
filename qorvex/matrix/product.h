#pragma once

/// @file
/// The product of two matrices.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The matrix product: element [i][j] is the sum of a[i][k] b[k][j], added in ascending order of k
/// from zero. Each product and each sum is rounded to extended precision; in Double and Single
/// matrices each sum is rounded to the element type as well. NaN and infinities are what the
/// processor makes of them. A matrix may be both arguments.
///
/// EMathError: rsMatrixRect when either matrix is ragged or, with the shape switch on, empty;
/// rsMatrixIsEmpty when either has no rows; rsMatrixMult when the columns of a are not as many as
/// the rows of b; then rsMatrixRect when, with the shape switch off, a row is shorter than its
/// matrix's first. For floating elements. O(rows of a x columns of a x columns of b), with
/// working memory of up to 128 bytes a column of a.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> MultiplyMatrices(const TQorMatrix<T>& a,
                                                           const TQorMatrix<T>& b);

}  // namespace qorvex::inline QorvexMatrix
