#pragma once

/// @file
/// Factorials, permutations and binomial coefficients.
///
/// Products in extended precision: exact while they stay below 2^64, then off by at most about one
/// unit in the last place for each factor. Coefficients are exact as long as k times C(n, k) is
/// below 2^61, for k counted from the nearer end.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexStatistics {

/// n!, the product 2 * 3 * ... * n; 1 for 0 and 1. EMathError: rsFactOverflow above 1754. O(n).
[[nodiscard]] QORVEX_EXPORT Extended Factorial(std::uint32_t n);

/// n! / (n - r)!, the number of ordered choices of r out of n: the product n (n - 1) ... (n - r +
/// 1). 1 for r = 0, but 0 for n = 0, also with r = 0. EMathError: rsPermInvalid for n < r;
/// rsPermOverflowed beyond the extended range. O(r), at most 1754 steps.
[[nodiscard]] QORVEX_EXPORT Extended Permutation(std::uint32_t n, std::uint32_t r);

/// n! / (r! (n - r)!), the number of choices of r out of n; 0 for n = 0, also with r = 0.
/// EMathError: rsBinomInvalid for n < r; rsBinomOverflowed beyond the extended range, which the
/// middle of a row reaches at n = 16392. O(min(r, n - r)), at most 16384 steps.
[[nodiscard]] QORVEX_EXPORT Extended BinomialCoeff(std::uint32_t n, std::uint32_t r);

}  // namespace qorvex::inline QorvexStatistics
