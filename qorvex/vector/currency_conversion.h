#pragma once

/// @file
/// Conversions of currency vectors to one another and from and to float vectors.
///
/// Each returns a new vector of the source's length, empty for an empty one, whose elements are
/// what the conversion of one amount gives: the nearest amount, ties to even, and the smallest
/// amount for what the target cannot hold, NaN included. Nothing raises. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinVector {

/// @{
/// The amounts as QorCurrency: with two decimals.
[[nodiscard]] QORVEX_EXPORT TQorCurrVector Vector2QorCurrVector(const TQorLongCurrVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrVector Vector2QorCurrVector(const TQorCurrencyVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrVector Vector2QorCurrVector(const TQorFloatVector& vector);
/// @}

/// @{
/// The amounts as QorLongCurrency: with six decimals.
[[nodiscard]] QORVEX_EXPORT TQorLongCurrVector
Vector2QorLongCurrVector(const TQorCurrVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrVector
Vector2QorLongCurrVector(const TQorCurrencyVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorLongCurrVector
Vector2QorLongCurrVector(const TQorFloatVector& vector);
/// @}

/// @{
/// The amounts as Currency: with four decimals. A copy for a Currency vector.
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(const TQorCurrVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(const TQorLongCurrVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(const TQorCurrencyVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorCurrencyVector
Vector2QorCurrencyVector(const TQorFloatVector& vector);
/// @}

/// @{
/// The amounts in units: 1.5 for QorCurrency(150).
[[nodiscard]] QORVEX_EXPORT TQorFloatVector Vector2FloatVector(const TQorCurrVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorFloatVector Vector2FloatVector(const TQorLongCurrVector& vector);
[[nodiscard]] QORVEX_EXPORT TQorFloatVector Vector2FloatVector(const TQorCurrencyVector& vector);
/// @}

}  // namespace qorvex::inline QorvexFinVector
