#pragma once

/// @file
/// Binomial coefficients and probabilities.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// The binomial coefficient C(n, k) for 0 <= k <= n. Correctly rounded for n below 256, and for
/// k = 0 and k = n.
[[nodiscard]] QORVEX_EXPORT Scaled BinomialCoefficient(std::int64_t n, std::int64_t k);

/// C(n, k) p^k q^(n - k) for k <= n and 0 < p < 1, with q = 1 - p. Where the coefficient is
/// correctly rounded, so is the probability: what has 64 bits, such as C(4, 2) / 2^4, is exact.
[[nodiscard]] QORVEX_EXPORT Scaled BinomialProbability(std::uint32_t n, std::uint32_t k,
                                                       ExtendedPair p, ExtendedPair q);

}  // namespace qorvex::special
