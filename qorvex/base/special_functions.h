#pragma once

/// @file
/// The gamma and beta functions and their inverses in extended precision.
///
/// - NaN arguments give NaN.
/// - Errors: EInvalidOp outside the domain, EZeroDivide at a pole, EOverflow if the value is beyond
///   the extended range.
/// - Values too small for the format become 0.
/// - A call costs as much as some hundreds to thousands of arithmetic operations.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The gamma function, off by at most 0.501 units in the last place. EZeroDivide for 0; EInvalidOp
/// for negative integers and -infinity; EOverflow above about 1755.5 and very close to 0.
[[nodiscard]] QORVEX_EXPORT Extended Gamma(Extended x);

/// ln |Gamma(x)|, off by at most 0.501 units in the last place; next to zeros below 0, where the
/// result is less than 1e-5, by 1e-26 more. EZeroDivide for 0 and negative integers; EInvalidOp for
/// -infinity; EOverflow above about 1e4928.
[[nodiscard]] QORVEX_EXPORT Extended LnGamma(Extended x);

/// The beta function B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b). EInvalidOp unless a and b are
/// positive and at most 1e15.
[[nodiscard]] QORVEX_EXPORT Extended Beta(Extended a, Extended b);

/// The regularised incomplete beta function I_x(a, b); the point is the first argument. EInvalidOp
/// unless x is from 0 to 1 and a and b are from 1e-18 to 1e15.
[[nodiscard]] QORVEX_EXPORT Extended IncompleteBeta(Extended x, Extended a, Extended b);

/// The point x with IncompleteBeta(x, a, b) = p; the probability is the first argument. EInvalidOp
/// unless p is from 0 to 1 and a and b are from 1e-18 to 1e15. A point too small for the format is
/// 0.
[[nodiscard]] QORVEX_EXPORT Extended InverseIncompleteBeta(Extended p, Extended a, Extended b);

/// The inverse of the complementary error function: infinity for 0 and -infinity for 2. EInvalidOp
/// unless y is from 0 to 2.
[[nodiscard]] QORVEX_EXPORT Extended InverseErfc(Extended y);

}  // namespace qorvex::inline QorvexGlobals
