#pragma once

/// @file
/// Sums and differences of two matrices, and products of a matrix and a constant.
///
/// Floating elements are computed in extended precision and rounded to their type when stored; NaN
/// and infinities are what the processor makes of them. Integers and the stored integers of amounts
/// wrap around silently; products of amounts are rounded to the nearest one, ties to even, or
/// become the smallest amount where they do not fit. A matrix may be both arguments. Routines that
/// change a matrix in place write to its rows, so the change is seen through every handle of a
/// row's buffer, and a buffer that several rows share is changed once for each of them.
/// O(elements).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/factor_type.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A new matrix with a[i][j] + b[i][j], or a[i][j] - b[i][j]. EMathError: rsMatrixIsEmpty when a
/// has no rows or its first row no elements, rsSameDimensions unless MatricesSameDimensions, then
/// rsMatrixRect when, with the shape switch off, a row of either is shorter than the first of a.
/// For floating elements, Int64, LInt and the currencies.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> AddMatrices(const TQorMatrix<T>& a,
                                                      const TQorMatrix<T>& b);
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> SubtractMatrices(const TQorMatrix<T>& a,
                                                           const TQorMatrix<T>& b);
/// @}

/// @{
/// Adds b[i][j] to a[i][j], or subtracts it, with the errors of AddMatrices, which leave a as it
/// is. For floating elements, Int64, LInt and the currencies.
template <AdditiveElement T>
QORVEX_EXPORT void AddToMatrix(TQorMatrix<T>& a, const TQorMatrix<T>& b);
template <AdditiveElement T>
QORVEX_EXPORT void SubtractFromMatrix(TQorMatrix<T>& a, const TQorMatrix<T>& b);
/// @}

/// A new matrix with every element times the factor, in rows of the same lengths, which may differ.
/// A matrix without rows raises EMathError with rsMatrixIsEmpty. For floating elements, Int64,
/// LInt and the currencies.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> MultiplyMatrixByConst(const TQorMatrix<T>& matrix,
                                                                ScalarOf<FactorOf<T>> factor);

/// Multiplies every element by the factor; rows may differ in length. A matrix without rows raises
/// EMathError with rsMatrixIsEmpty. For floating elements, Int64, LInt and the
/// currencies.
template <AdditiveElement T>
QORVEX_EXPORT void MultiplyMatrixByConst2(TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> factor);

}  // namespace qorvex::inline QorvexMatrix
