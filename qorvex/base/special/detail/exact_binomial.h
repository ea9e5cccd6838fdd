#pragma once

/// @file
/// Binomial coefficients and probabilities of few trials as products of pairs.

#include <cstdint>

#include "qorvex/base/special/detail/binary.h"

namespace qorvex::special {

/// The numbers of trials below this have exact coefficients. The factorial of the largest is 1e504,
/// so products of factorials stay in range.
inline constexpr int kExactTrials = 256;

/// Whether ExactCoefficient(n, k) exists.
[[nodiscard]] inline bool HasExactCoefficient(Extended n, Extended k) {
  return n < kExactTrials || k == 0 || k == n;
}

/// C(n, k), to some 120 bits.
[[nodiscard]] ExtendedPair ExactCoefficient(std::uint64_t n, std::uint64_t k);

/// C(n, k) p^k q^(n - k), to some 115 bits.
[[nodiscard]] Binary ExactProbability(std::uint64_t n, std::uint64_t k, ExtendedPair p,
                                      ExtendedPair q);

}  // namespace qorvex::special
