#pragma once

// The error functions as numbers of 128 bits.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/export.h"

namespace qorvex::elementary {

/// Below 1/2 erf is computed, and erfc as 1 minus it; above the other way round.
constexpr bool IsErfNearZero(const Wide& x) {
  return x.IsZero() || x.exponent < -1;
}

/// e^(x^2) erfc(x) for x >= 1/2; relative error below 2^-103.
[[nodiscard]] QORVEX_EXPORT Wide ScaledErfcWide(const Wide& x);

/// @{
/// erf(x) and erfc(x) for |x| < 2^20; relative error below 2^-95.
[[nodiscard]] QORVEX_EXPORT Wide ErfWide(const Wide& x);
[[nodiscard]] QORVEX_EXPORT Wide ErfcWide(const Wide& x);
/// @}

}  // namespace qorvex::elementary
