#pragma once

/// @file
/// Functions applied to every element of a matrix in place; rows may differ in length.
///
/// Elements are visited row by row and from left to right. Each is checked exactly, without
/// tolerance, and replaced at once: when one raises, those before it are already replaced and stay
/// so. NaN elements pass every check; they and infinite ones give what the processor makes of them.
/// Floating elements are computed in extended precision and rounded to their type when stored.
///
/// The change is seen through every handle of a row's buffer; a buffer that several rows of the
/// matrix share is changed once for each of them. A matrix without rows raises EMathError with
/// rsMatrixIsEmpty. O(elements).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/factor_type.h"

namespace qorvex::inline QorvexMatrix {

/// Replaces each element x by multiplier * x + offset: two roundings in extended precision for
/// floating elements, wrapping arithmetic for integers. Amounts are transformed in units and
/// rounded, as LinearTransformVector does. For floating elements, Int64, LInt and the currencies.
template <AdditiveElement T>
QORVEX_EXPORT void LinearTransformMatrix(TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> multiplier,
                                         ScalarOf<FactorOf<T>> offset);

/// Squares each element; MultiplyMatrices forms the square of a matrix. For floating elements.
template <FloatElement T>
QORVEX_EXPORT void SquareMatrix(TQorMatrix<T>& matrix);

/// Replaces each element by its square root. An element below 0 raises EMathError with rsMatrixNeg.
/// For floating elements.
template <FloatElement T>
QORVEX_EXPORT void SqrtMatrix(TQorMatrix<T>& matrix);

/// Replaces each element by its reciprocal; MatrixInverse forms the inverse of a matrix. An element
/// that is 0 raises EMathError with rsMatrixZero; a tiny one has a huge reciprocal. For floating
/// elements.
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
