#pragma once

/// @file
/// Zero and identity matrices of amounts, and conversion to extended precision.
///
/// - The results share no buffers with any other matrix.
/// - Every shape is accepted, including empty and ragged matrices. No errors except std::bad_alloc.
/// - O(number of elements).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinMatrix {

/// @{
/// A matrix of the given shape with all amounts zero. With rows = 0 it is empty; with cols = 0 its
/// rows are empty.
[[nodiscard]] QORVEX_EXPORT TQorCurrMatrix CreateCurrMatrix(std::uint32_t rows, std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrMatrix CreateLongCurrMatrix(std::uint32_t rows,
                                                                    std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyMatrix CreateCurrencyMatrix(std::uint32_t rows,
                                                                    std::uint32_t cols);
/// @}

/// @{
/// The identity matrix: one currency unit on the main diagonal and zeros elsewhere. Empty for order
/// 0.
[[nodiscard]] QORVEX_EXPORT TQorCurrMatrix CreateCurrIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrMatrix CreateLongCurrIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyMatrix CreateCurrencyIdentityMatrix(std::uint32_t order);
/// @}

/// @{
/// A float matrix with the same row lengths. Currency amounts are converted to units:
/// Currency(25000) becomes 2.5. QorCurrency and QorLongCurrency amounts become their stored
/// integers, without scaling: QorCurrency(250) becomes 250. Vector2FloatVector converts all three
/// types to units.
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorCurrMatrix& matrix);
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorLongCurrMatrix& matrix);
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorCurrencyMatrix& matrix);
/// @}

}  // namespace qorvex::inline QorvexFinMatrix
