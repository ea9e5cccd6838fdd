#pragma once

/// @file
/// Making currency matrices, and their conversion to extended precision.
///
/// The results are new matrices that share nothing with any other. Nothing here raises but
/// std::bad_alloc; every shape is accepted, empty and ragged ones too. O(elements).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinMatrix {

/// @{
/// A matrix of so many rows and columns, all amounts zero. Without rows it is empty, whatever the
/// count of columns; without columns its rows have the length 0.
[[nodiscard]] QORVEX_EXPORT TQorCurrMatrix CreateCurrMatrix(std::uint32_t rows, std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrMatrix CreateLongCurrMatrix(std::uint32_t rows,
                                                                    std::uint32_t cols);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyMatrix CreateCurrencyMatrix(std::uint32_t rows,
                                                                    std::uint32_t cols);
/// @}

/// @{
/// The identity matrix of an order: one currency unit on the main diagonal and zeros elsewhere;
/// empty for the order 0.
[[nodiscard]] QORVEX_EXPORT TQorCurrMatrix CreateCurrIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrMatrix CreateLongCurrIdentityMatrix(std::uint32_t order);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyMatrix CreateCurrencyIdentityMatrix(std::uint32_t order);
/// @}

/// @{
/// A float matrix with rows of the same lengths. Currency amounts become units, 2.5 for
/// Currency(25000); the other two are copied as their stored integers, without any scaling, so that
/// QorCurrency(250) becomes 250. Vector2FloatVector gives units for all three.
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorCurrMatrix& matrix);
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorLongCurrMatrix& matrix);
[[nodiscard]] QORVEX_EXPORT TQorFloatMatrix Matrix2FloatMatrix(const TQorCurrencyMatrix& matrix);
/// @}

}  // namespace qorvex::inline QorvexFinMatrix
