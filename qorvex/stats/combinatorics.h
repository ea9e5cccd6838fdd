#pragma once

/// @file
/// Factorials, permutations and binomial coefficients.
///
/// All are products in extended precision: exact while they stay below 2^64, and beyond that off by
/// at most about one unit in the last place per factor. Binomial coefficients are exact while k
/// C(n, k) < 2^61, with k counted from the nearer end.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexStatistics {

/// n! = 2 * 3 * ... * n.
///
/// - 0! = 1! = 1.
/// - EMathError rsFactOverflow if n > 1754.
/// - Cost: O(n).
[[nodiscard]] QORVEX_EXPORT Extended Factorial(std::uint32_t n);

/// n! / (n - r)! = n (n - 1) ... (n - r + 1), the number of ordered selections of r out of n.
///
/// - r = 0: 1. n = 0: 0, even for r = 0.
/// - EMathError: rsPermInvalid if n < r; rsPermOverflowed if the product exceeds the extended
///   range.
/// - Cost: O(r), at most 1754 steps.
[[nodiscard]] QORVEX_EXPORT Extended Permutation(std::uint32_t n, std::uint32_t r);

/// n! / (r! (n - r)!), the number of selections of r out of n.
///
/// - r = 0 or r = n: 1. n = 0: 0, even for r = 0.
/// - EMathError: rsBinomInvalid if n < r; rsBinomOverflowed if the coefficient exceeds the extended
///   range. The first row with such a coefficient is n = 16392.
/// - Cost: O(min(r, n - r)), at most 16384 steps.
[[nodiscard]] QORVEX_EXPORT Extended BinomialCoeff(std::uint32_t n, std::uint32_t r);

}  // namespace qorvex::inline QorvexStatistics
