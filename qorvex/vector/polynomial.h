#pragma once

/// @file
/// The value of a polynomial.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// c[0] + c[1] x + c[2] x^2 + ...
///
/// - n = 0: the result is 0.
/// - Powers are computed and terms are added in ascending order. The order is part of the result:
///   Horner's scheme would round differently.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - O(n).
[[nodiscard]] QORVEX_EXPORT Extended QorPolynomial(VectorView<Extended> coefficients,
                                                   Extended x) noexcept;

}  // namespace qorvex::inline QorvexVector
