#pragma once

/// @file
/// Zero and identity matrices, copies, and conversion to extended precision.
///
/// - The results share no buffers with any other matrix.
/// - Every shape is accepted, including empty and ragged matrices. No errors except std::bad_alloc.
/// - O(number of elements).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A matrix of the given shape with all elements zero. With rows = 0 it is empty; with cols = 0 its
/// rows are empty.
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix CreateFloatMatrix(std::uint32_t rows,
                                                              std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorDoubleMatrix CreateDoubleMatrix(std::uint32_t rows,
                                                                std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorSingleMatrix CreateSingleMatrix(std::uint32_t rows,
                                                                std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorInt64Matrix CreateInt64Matrix(std::uint32_t rows,
                                                              std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorLWordMatrix CreateLWordMatrix(std::uint32_t rows,
                                                              std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorLIntMatrix CreateLIntMatrix(std::uint32_t rows, std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorWordMatrix CreateWordMatrix(std::uint32_t rows, std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorSmallIntMatrix CreateSmallIntMatrix(std::uint32_t rows,
                                                                    std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorByteMatrix CreateByteMatrix(std::uint32_t rows, std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorSIntMatrix CreateSIntMatrix(std::uint32_t rows, std::uint32_t cols);
/// @}

/// @{
/// The identity matrix: ones on the main diagonal and zeros elsewhere. Empty for order 0.
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix CreateFloatIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorDoubleMatrix CreateDoubleIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorSingleMatrix CreateSingleIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorInt64Matrix CreateInt64IdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorLWordMatrix CreateLWordIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorLIntMatrix CreateLIntIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorWordMatrix CreateWordIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorSmallIntMatrix CreateSmallIntIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorByteMatrix CreateByteIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorSIntMatrix CreateSIntIdentityMatrix(std::uint32_t order);
/// @}

/// A deep copy: every row gets its own buffer, even if rows of the matrix share one. Ragged shapes
/// and empty rows are kept. For all element types.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> CopyMatrix(const TQorMatrix<T>& matrix);

/// A new matrix with the same elements in extended precision, which is exact, and the same row
/// lengths. For all numeric element types.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
