#pragma once

/// @file
/// The binomial distribution: the number of successes in n trials, each with probability p.
///
/// A probability is C(n, k) p^k (1 - p)^(n - k) in this order, and a lower probability the sum of
/// these from 0 on. This has limits, which BinomialDistribution does not have:
///
/// - The coefficient may be beyond the extended range where the probability is not: from n = 16392
///   on, counts near n/2 raise EMathError with rsBinomOverflowed. Nothing else overflows.
/// - A power may underflow where the probability does not: with four billion trials, probabilities
///   below 1e-110 may lose digits and be 0; with a million, those below 1e-244.
/// - 1 - p rounds, and (1 - p)^(n - k) multiplies that error by n - k: with four billion trials and
///   a small p, 1e-10 of the probability.
/// - Upper probabilities are 1 less the lower ones, with an absolute error of about 1e-19 n; small
///   ones lose their digits and can be negative by as much, where the sum has come out above 1.
///
/// EMathError: rsBinomDistInvalid unless n > 0, no count exceeds n and 0 <= p <= 1, which NaN is
/// not; then rsBinomOverflowed. A probability costs one BinomialCoeff and two powers. Sums add one
/// term a count; the coefficients of a sum take n^2/8 steps in all at most.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// P(X = k).
[[nodiscard]] QORVEX_EXPORT Extended BinomialEq(Extended p, std::uint32_t n, std::uint32_t k);

/// P(X < k); 0 for k = 0.
[[nodiscard]] QORVEX_EXPORT Extended BinomialLess(Extended p, std::uint32_t n, std::uint32_t k);

/// P(X > k), which is 1 - BinomialLess(p, n, k + 1); 0 for k = n.
[[nodiscard]] QORVEX_EXPORT Extended BinomialGreater(Extended p, std::uint32_t n, std::uint32_t k);

/// P(k1 < X < k2), both ends excluded, when the counts ascend; P(k2 <= X <= k1), both included,
/// when they descend; P(X = k1) when they are equal.
[[nodiscard]] QORVEX_EXPORT Extended BinomialBetween(Extended p, std::uint32_t n, std::uint32_t k1,
                                                     std::uint32_t k2);

/// The n + 1 probabilities of 0 to n. The output is released before anything is checked, and a
/// negative n raises rsBinomDistInvalid.
QORVEX_EXPORT void BinomialPDFValues(std::int32_t n, Extended p, TQorFloatVector& probs);

}  // namespace qorvex::inline QorvexStatistics
