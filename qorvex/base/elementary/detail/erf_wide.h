#pragma once

// The error functions as numbers of 128 bits.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/export.h"

namespace qorvex::elementary {

/// e^(x^2) erfc(x) / 2 for x >= 0; relative error below 2^-90.
[[nodiscard]] QORVEX_EXPORT Wide ScaledHalfErfcWide(const Wide& x);

/// erfc(|x|) / 2 for |x| < 2^16; relative error below 2^-90.
[[nodiscard]] QORVEX_EXPORT Wide HalfErfcWide(const Wide& x);

/// @{
/// erf(x) and erfc(x) for |x| < 2^16; relative error below 2^-90.
[[nodiscard]] QORVEX_EXPORT Wide ErfWide(const Wide& x);
[[nodiscard]] QORVEX_EXPORT Wide ErfcWide(const Wide& x);
/// @}

}  // namespace qorvex::elementary
