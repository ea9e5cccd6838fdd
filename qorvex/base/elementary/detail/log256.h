#pragma once

// The logarithm of 256 bits, for second stages.

#include "qorvex/base/elementary/detail/wide256.h"

namespace qorvex::elementary {

/// ln x for x > 0 with an exponent of at most 20000; relative error below 2^-220, also beside 1.
[[nodiscard]] Wide256 Log(const Wide256& x);

}  // namespace qorvex::elementary
