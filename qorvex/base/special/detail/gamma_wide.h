#pragma once

// The gamma function and its logarithm as numbers of 128 bits, before they are rounded.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/special/scaled.h"

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

/// ln Gamma(a + 1) for a >= 16.
[[nodiscard]] Wide LnFactorialWide(const Wide& a);

/// Gamma(a) / (sqrt(2 pi / a) (a / e)^a) for a > 0, which tends to 1: Gamma functions of large
/// arguments without what cancels in their quotients.
[[nodiscard]] Scaled TemperedGamma(const Wide& a);

/// ln(Gamma(b + a) / Gamma(b)) for a, b > 0; relative error below 2^-85 for the smallest a, too,
/// unless the result is close to its zero.
[[nodiscard]] Wide LnGammaRatio(const Wide& b, const Wide& a);

}  // namespace qorvex::special
