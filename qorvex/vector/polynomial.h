#pragma once

/// @file
/// The value of a polynomial.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// The polynomial's value at x; the constant term comes first, and an empty vector gives 0. The
/// powers of x are formed in ascending order and the terms added in that order, which is part of
/// the result: Horner's scheme would round otherwise. NaN and infinities are what the processor
/// makes of them. O(n).
[[nodiscard]] QORVEX_EXPORT Extended QorPolynomial(const TQorFloatVector& coefficients,
                                                   Extended x) noexcept;

}  // namespace qorvex::inline QorvexVector
