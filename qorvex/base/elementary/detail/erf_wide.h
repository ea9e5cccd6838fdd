#pragma once

// The error functions as numbers of 128 bits.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/export.h"

namespace qorvex::elementary {

/// erf(x) and erfc(x) for |x| < 2^20; relative error below 2^-95.
[[nodiscard]] QORVEX_EXPORT Wide ErfWide(const Wide& x);
[[nodiscard]] QORVEX_EXPORT Wide ErfcWide(const Wide& x);

}  // namespace qorvex::elementary
