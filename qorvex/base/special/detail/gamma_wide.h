#pragma once

// The gamma function and its logarithm as numbers of 128 bits, before they are rounded.

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::special {

using elementary::Wide;

/// Gamma(1 + t) - 1 for 0 <= t <= 1; relative error below 2^-94.
[[nodiscard]] Wide GammaMinusOne(const Wide& t);

/// Gamma(x) for |x| <= 10000 but 0, -1, -2, ...; relative error below 2^-90 for |x| < 16, and below
/// 2^-79 beyond.
[[nodiscard]] Wide GammaWide(const Wide& x);

/// ln |Gamma(x)| for all x but 0, -1, -2, ...; relative error below 2^-92 for x > 0, where the
/// zeros at 1 and 2 are exact. Below 0 the error is below 2^-90 max(1, |result|).
[[nodiscard]] Wide LnGammaWide(const Wide& x);

/// ln Gamma(x) - (x - 1/2) ln x + x - ln(2 pi) / 2 for x >= 16: Stirling's series; relative error
/// below 2^-91.
[[nodiscard]] Wide StirlingSeries(const Wide& x);

}  // namespace qorvex::special
