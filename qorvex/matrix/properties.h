#pragma once

/// @file
/// Tests for zero rows and for the identity matrix, within QorTolerance.
///
/// Elements are compared in extended precision. O(number of elements). For floating elements.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The number of rows whose elements are all zero. NaN and infinities are not zero.
///
/// EMathError, in this order: rsMatrixIsEmpty for a matrix without rows or columns, or a ragged
/// one; with the shape switch off rsMatrixRect if a row is shorter than the first.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT std::uint32_t MatrixZeroRows(const TQorMatrix<T>& matrix);

/// True if every element on the main diagonal is one and all others are zero. NaN is neither.
///
/// EMathError, in this order: rsMatrixIsEmpty for a matrix without rows or columns, or a ragged
/// one; rsMatrixSqr if it is not square; with the shape switch off rsMatrixRect if a row is shorter
/// than the first.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT bool MatrixIsIdentity(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
