#pragma once

/// @file
/// Questions about the elements of a matrix, within QorTolerance of zero and one.
///
/// Elements of every floating type are compared in extended precision. O(elements).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The number of rows whose elements are all zero; NaN and infinities are not. EMathError:
/// rsMatrixIsEmpty for a matrix without rows or columns, or a ragged one; then rsMatrixRect when,
/// with the shape switch off, a row is shorter than the first. For floating elements.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t MatrixZeroRows(const TQorMatrix<T>& matrix);

/// True when every element of the main diagonal is one and every other one zero; NaN is neither.
/// EMathError: rsMatrixIsEmpty for a matrix without rows or columns, or a ragged one; rsMatrixSqr
/// when it is not square; then rsMatrixRect when, with the shape switch off, a row is shorter than
/// the first. For floating elements.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixIsIdentity(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
