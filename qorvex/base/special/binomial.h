#pragma once

/// @file
/// Binomial coefficients and probabilities.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// The binomial coefficient C(n, k) for 0 <= k <= n. For n below 256 it is computed in 125 bits, so
/// that one with at most 64 bits is exact; so are C(n, 0) and C(n, n).
[[nodiscard]] QORVEX_EXPORT Scaled BinomialCoefficient(std::int64_t n, std::int64_t k);

/// C(n, k) p^k q^(n - k) for k <= n and 0 < p < 1, with q = 1 - p. For n below 256 the product
/// has 125 bits, so that a result with 64 bits, such as C(4, 2) / 2^4, is exact.
[[nodiscard]] QORVEX_EXPORT Scaled BinomialProbability(std::uint32_t n, std::uint32_t k,
                                                       ExtendedPair p, ExtendedPair q);

}  // namespace qorvex::special
