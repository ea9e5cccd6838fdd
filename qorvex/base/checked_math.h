#pragma once

/// @file
/// Operations that raise an error where IEEE 754 arithmetic would return an infinity or NaN for
/// finite operands.
///
/// NaN operands are not an error: the result is NaN. Infinite operands follow IEEE 754, except that
/// an undefined result (infinity / infinity) raises EInvalidOp.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// x / y.
///
/// - EInvalidOp for 0 / 0 and infinity / infinity.
/// - EZeroDivide for any other x and y = 0.
/// - EOverflow if finite operands give an infinite quotient.
[[nodiscard]] QORVEX_EXPORT Extended CheckedDivide(Extended x, Extended y);

/// The square root. EInvalidOp for x < 0.
[[nodiscard]] QORVEX_EXPORT Extended CheckedSqrt(Extended x);

/// The natural logarithm. EInvalidOp for x < 0; EZeroDivide for x = 0.
[[nodiscard]] QORVEX_EXPORT Extended CheckedLn(Extended x);

/// e^x. EOverflow if a finite x gives an infinite result.
[[nodiscard]] QORVEX_EXPORT Extended CheckedExp(Extended x);

/// XtoY(x, y).
///
/// - EZeroDivide for x = 0 and y < 0.
/// - EInvalidOp for finite operands with x < 0 and y not an integer.
/// - EOverflow if finite operands give an infinite power.
[[nodiscard]] QORVEX_EXPORT Extended CheckedXtoY(Extended x, Extended y);

/// Returns its argument, the result of a computation on finite operands. EOverflow if it is
/// infinite, EInvalidOp if it is NaN.
QORVEX_EXPORT Extended CheckedFinite(Extended result);

}  // namespace qorvex::inline QorvexGlobals
