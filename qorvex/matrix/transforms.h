#pragma once

/// @file
/// Functions applied to every element of a matrix in place. Rows may differ in length.
///
/// - Elements are processed row by row, from left to right. Each is checked, exactly and without
///   tolerance, and replaced before the next: if an element raises an error, those before it are
///   already replaced.
/// - NaN passes every check. NaN and infinities propagate as in IEEE 754 arithmetic.
/// - Floating elements are computed in extended precision and rounded to their type when stored.
/// - The change is seen through every handle of a row's buffer. A buffer that several rows share is
///   changed once for each of them.
/// - A matrix without rows raises EMathError with rsMatrixIsEmpty.
/// - O(number of elements).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/factor_type.h"

namespace qorvex::inline QorvexMatrix {

/// Replaces each element x by multiplier * x + offset. The product and the sum are each rounded to
/// extended precision for floating elements; integers wrap around; amounts are transformed in units
/// and rounded as by LinearTransformVector. For floating elements, int64, int32 and the currencies.
template <AdditiveElement T>
QORVEX_EXPORT void LinearTransformMatrix(TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> multiplier,
                                         ScalarOf<FactorOf<T>> offset);

/// Squares each element. MultiplyMatrices computes the square of a matrix. For floating elements.
template <FloatElement T>
QORVEX_EXPORT void SquareMatrix(TQorMatrix<T>& matrix);

/// Replaces each element by its square root. A negative element raises EMathError with rsMatrixNeg.
/// For floating elements.
template <FloatElement T>
QORVEX_EXPORT void SqrtMatrix(TQorMatrix<T>& matrix);

/// Replaces each element by its reciprocal. MatrixInverse computes the inverse of a matrix. An
/// element that is exactly 0 raises EMathError with rsMatrixZero. For floating elements.
template <FloatElement T>
QORVEX_EXPORT void InvMatrix(TQorMatrix<T>& matrix);

/// @{
/// Replaces each element by its natural or base-10 logarithm. A zero or negative element raises
/// EMathError with rsMatrixNotPos. For floating elements.
template <FloatElement T>
QORVEX_EXPORT void LnMatrix(TQorMatrix<T>& matrix);
template <FloatElement T>
QORVEX_EXPORT void Log10Matrix(TQorMatrix<T>& matrix);
/// @}

}  // namespace qorvex::inline QorvexMatrix
