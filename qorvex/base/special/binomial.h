#pragma once

/// @file
/// Binomial probabilities.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// C(n, k) p^k q^(n - k) for k <= n and 0 < p < 1, with q = 1 - p. For n below 256 the product
/// has some 115 bits, so that a result with 64 bits, such as C(4, 2) / 2^4, is exact.
[[nodiscard]] QORVEX_EXPORT Scaled BinomialProbability(std::uint32_t n, std::uint32_t k,
                                                       ExtendedPair p, ExtendedPair q);

}  // namespace qorvex::special
