#pragma once

/// @file
/// Operations that raise where the processor would store an infinity or NaN. NaN operands are no
/// error: they give NaN. Infinite operands give what the processor gives, except where the result
/// has no value.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// x / y. EInvalidOp for 0/0 and infinity/infinity; EZeroDivide for a non-zero x and y = 0;
/// EOverflow when finite operands give an infinite quotient.
[[nodiscard]] QORVEX_EXPORT Extended CheckedDivide(Extended x, Extended y);

/// The square root. EInvalidOp for x < 0.
[[nodiscard]] QORVEX_EXPORT Extended CheckedSqrt(Extended x);

/// The natural logarithm. EInvalidOp for x < 0; EZeroDivide for x = 0.
[[nodiscard]] QORVEX_EXPORT Extended CheckedLn(Extended x);

/// The exponential. EOverflow when a finite x gives an infinite result.
[[nodiscard]] QORVEX_EXPORT Extended CheckedExp(Extended x);

/// XtoY(x, y). EZeroDivide for x = 0 and y < 0; EInvalidOp for a finite x < 0 and a finite y that
/// is no integer; EOverflow when finite operands give an infinite power.
[[nodiscard]] QORVEX_EXPORT Extended CheckedXtoY(Extended x, Extended y);

/// The result of a computation on finite operands. EOverflow when it is infinite, EInvalidOp when
/// it is NaN.
QORVEX_EXPORT Extended CheckedFinite(Extended result);

}  // namespace qorvex::inline QorvexGlobals
