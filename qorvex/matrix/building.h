#pragma once

/// @file
/// Making matrices: zero and identity matrices, copies, conversion to extended precision.
///
/// The results are new matrices that share nothing with any other. Nothing here raises but
/// std::bad_alloc; every shape is accepted, empty and ragged ones too. O(elements).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A matrix of so many rows and columns, all elements zero. Without rows it is empty, whatever the
/// count of columns; without columns its rows have the length 0.
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
/// The identity matrix of an order: ones on the main diagonal and zeros elsewhere; empty for the
/// order 0.
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

/// A copy with rows of its own. Ragged shapes and rows without elements are kept; rows that shared
/// a buffer no longer do. For all elements.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> CopyMatrix(const TQorMatrix<T>& matrix);

/// The elements in extended precision, each converted exactly, in rows of the same lengths; a copy
/// for a float matrix. For all numeric elements.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
