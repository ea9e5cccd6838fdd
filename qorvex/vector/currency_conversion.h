#pragma once

/// @file
/// Conversions between currency vectors, and between currency and float vectors.
///
/// - Each returns a new vector of the same length; n = 0 gives an empty result.
/// - Values are rounded to the nearest amount, ties to even. NaN and values out of range become the
///   smallest amount.
/// - No errors. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinVector {

/// @{
/// The amounts as QorCurrency, with two decimals.
[[nodiscard]] QORVEX_EXPORT TQorCurrVector Vector2QorCurrVector(VectorView<QorLongCurrency> vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrVector Vector2QorCurrVector(VectorView<Currency> vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrVector Vector2QorCurrVector(VectorView<Extended> vector);
/// @}

/// @{
/// The amounts as QorLongCurrency, with six decimals.
[[nodiscard]] QORVEX_EXPORT TQorLongCurrVector
Vector2QorLongCurrVector(VectorView<QorCurrency> vector);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrVector
Vector2QorLongCurrVector(VectorView<Currency> vector);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrVector
Vector2QorLongCurrVector(VectorView<Extended> vector);
/// @}

/// @{
/// The amounts as Currency, with four decimals. A Currency vector is copied.
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(VectorView<QorCurrency> vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(VectorView<QorLongCurrency> vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(VectorView<Currency> vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(VectorView<Extended> vector);
/// @}

/// @{
/// The amounts in units: 1.5 for QorCurrency(150).
[[nodiscard]] QORVEX_EXPORT TQorFloatVector Vector2FloatVector(VectorView<QorCurrency> vector);
[[nodiscard]] QORVEX_EXPORT TQorFloatVector Vector2FloatVector(VectorView<QorLongCurrency> vector);
[[nodiscard]] QORVEX_EXPORT TQorFloatVector Vector2FloatVector(VectorView<Currency> vector);
/// @}

}  // namespace qorvex::inline QorvexFinVector
