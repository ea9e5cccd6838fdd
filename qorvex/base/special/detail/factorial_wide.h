#pragma once

// Factorials in 128 bits.

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::special {

using elementary::Wide;

/// FactorialWide takes arguments below this.
inline constexpr int kFactorialWideEnd = 256;

/// Gamma(a + 1) for 0 <= a < 256; relative error below 2^-85, and 2^-115 for halves of whole
/// numbers.
[[nodiscard]] Wide FactorialWide(const Wide& a);

}  // namespace qorvex::special
