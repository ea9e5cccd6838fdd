#pragma once

/// @file
/// The gamma and beta functions and their inverses in extended precision.
///
/// NaN arguments give NaN. Errors are the runtime's: EInvalidOp outside the domain, EZeroDivide at
/// a pole, EOverflow when the value is beyond the extended range. Values too small for the format
/// become 0, and subnormal ones may. Gamma, LnGamma and InverseErfc are Boost.Math's. The
/// costs are those of some hundred to some thousand arithmetic operations.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The gamma function. EZeroDivide at 0; EInvalidOp at the negative integers and at -infinity;
/// EOverflow above about 1755.5.
[[nodiscard]] QORVEX_EXPORT Extended Gamma(Extended x);

/// The natural logarithm of the absolute value of the gamma function. EZeroDivide at 0 and the
/// negative integers; EInvalidOp at -infinity.
[[nodiscard]] QORVEX_EXPORT Extended LnGamma(Extended x);

/// The beta function B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b). EInvalidOp unless a and b are
/// positive and at most 1e15.
[[nodiscard]] QORVEX_EXPORT Extended Beta(Extended a, Extended b);

/// The incomplete beta function, regularised: I(x; a, b), point first. EInvalidOp unless 0 <= x <=
/// 1 and a and b are from 1e-18 to 1e15.
[[nodiscard]] QORVEX_EXPORT Extended IncompleteBeta(Extended x, Extended a, Extended b);

/// The point x with IncompleteBeta(x, a, b) = p, probability first. EInvalidOp unless 0 <= p <= 1
/// and a and b are from 1e-18 to 1e15. A point too small for the format is 0.
[[nodiscard]] QORVEX_EXPORT Extended InverseIncompleteBeta(Extended p, Extended a, Extended b);

/// The inverse of the complementary error function: infinity for 0 and -infinity for 2. EInvalidOp
/// unless 0 <= y <= 2.
[[nodiscard]] QORVEX_EXPORT Extended InverseErfc(Extended y);

}  // namespace qorvex::inline QorvexGlobals
