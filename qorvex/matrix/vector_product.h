#pragma once

/// @file
/// Products of a matrix and a vector.
///
/// - Bit for bit the elements of the matrix product in which the vector is one column or one row:
///   products are added in ascending order, starting from zero; each product and each sum is
///   rounded to extended precision, and in Double and Single matrices then to the element type.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - The vector is any contiguous range of the element type.
/// - EMathError, in this order: with the shape switch on rsMatrixRect for a ragged or empty matrix;
///   rsMatrixIsEmpty for a matrix without rows; rsMatrixMult if the vector does not have as many
///   elements as the matrix has columns, or rows; with the shape switch off rsMatrixRect if a row
///   is shorter than the first.
/// - O(rows x columns). For floating elements.

#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The vector with the elements sum of matrix[i][k] * vector[k], one for each row of the matrix.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> MultiplyMatrixByVector(
    const TQorMatrix<T>& matrix, VectorView<std::type_identity_t<T>> vector);

/// The vector with the elements sum of vector[k] * matrix[k][j], one for each column of the matrix.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> MultiplyVectorByMatrix(
    VectorView<std::type_identity_t<T>> vector, const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
