#pragma once

/// @file
/// Factorials far beyond the extended range.

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// Gamma(a + 1), the factorial of a >= 0: a table for halves of whole numbers, polynomials and
/// products below 16, Stirling's series from there on. NaN gives NaN.
[[nodiscard]] QORVEX_EXPORT Scaled FactorialOf(ExtendedPair a);

}  // namespace qorvex::special
