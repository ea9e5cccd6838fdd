#pragma once

/// @file
/// Sums and differences of two matrices, and products of a matrix and a constant.
///
/// - Floating elements are computed in extended precision and rounded to their type when stored.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - Integers and the stored integers of amounts wrap around silently. Products of amounts are
///   rounded to the nearest amount, ties to even; values out of range become the smallest amount.
/// - Both arguments may be the same matrix.
/// - Changes in place are seen through every handle of a row's buffer. A buffer that several rows
///   share is changed once for each of them.
/// - O(number of elements). For floating elements, int64, int32 and the currencies.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/factor_type.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A new matrix with the elements a[i][j] + b[i][j], or a[i][j] - b[i][j].
///
/// EMathError, in this order: rsMatrixIsEmpty if a has no rows or its first row is empty;
/// rsSameDimensions unless MatricesSameDimensions(a, b); with the shape switch off rsMatrixRect if
/// a row of a or b is shorter than the first row of a.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> AddMatrices(const TQorMatrix<T>& a,
                                                      const TQorMatrix<T>& b);
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> SubtractMatrices(const TQorMatrix<T>& a,
                                                           const TQorMatrix<T>& b);
/// @}

/// @{
/// Replaces a[i][j] by a[i][j] + b[i][j], or a[i][j] - b[i][j]. The errors are those of
/// AddMatrices; they leave a unchanged.
template <AdditiveElement T>
QORVEX_EXPORT void AddToMatrix(TQorMatrix<T>& a, const TQorMatrix<T>& b);
template <AdditiveElement T>
QORVEX_EXPORT void SubtractFromMatrix(TQorMatrix<T>& a, const TQorMatrix<T>& b);
/// @}

/// A new matrix with every element multiplied by the factor. Rows may differ in length. A matrix
/// without rows raises EMathError with rsMatrixIsEmpty.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> MultiplyMatrixByConst(const TQorMatrix<T>& matrix,
                                                                ScalarOf<FactorOf<T>> factor);

/// Multiplies every element by the factor, in place. Rows may differ in length. A matrix without
/// rows raises EMathError with rsMatrixIsEmpty.
template <AdditiveElement T>
QORVEX_EXPORT void MultiplyMatrixByConst2(TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> factor);

}  // namespace qorvex::inline QorvexMatrix
