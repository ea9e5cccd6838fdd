#pragma once

/// @file
/// The binomial distribution: the number of successes in n trials, each with probability p.
///
/// A probability is C(n, k) p^k (1-p)^(n-k), computed in this order; a lower probability is the sum
/// of the probabilities from 0 on. This order has limits, which BinomialDistribution does not have:
///
/// - The coefficient can exceed the extended range although the probability does not. From n =
///   16392 on, counts near n/2 raise EMathError with rsBinomOverflowed.
/// - A power can underflow although the probability does not. With four billion trials,
///   probabilities below 1e-110 may lose digits or become 0; with a million, probabilities below
///   1e-244.
/// - 1 - p rounds, and (1-p)^(n-k) multiplies that error by n - k. With four billion trials and
///   small p, the relative error reaches 1e-10.
/// - Upper probabilities are 1 - lower, with an absolute error of about 1e-19 n. Small ones lose
///   their digits, and they are negative if the sum has come out above 1.
///
/// EMathError: rsBinomDistInvalid unless n > 0, no count exceeds n and 0 <= p <= 1 (NaN included);
/// then rsBinomOverflowed.
///
/// Cost: one BinomialCoeff and two powers for a probability. A sum adds one term for each count;
/// its coefficients take at most n^2/8 steps in total.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// P(X = k).
[[nodiscard]] QORVEX_EXPORT Extended BinomialEq(Extended p, std::uint32_t n, std::uint32_t k);

/// P(X < k); 0 for k = 0.
[[nodiscard]] QORVEX_EXPORT Extended BinomialLess(Extended p, std::uint32_t n, std::uint32_t k);

/// P(X > k) = 1 - BinomialLess(p, n, k + 1); 0 for k = n.
[[nodiscard]] QORVEX_EXPORT Extended BinomialGreater(Extended p, std::uint32_t n, std::uint32_t k);

/// The probability between two counts:
///
/// - k1 < k2: P(k1 < X < k2), both ends excluded;
/// - k1 > k2: P(k2 <= X <= k1), both ends included;
/// - k1 = k2: P(X = k1).
[[nodiscard]] QORVEX_EXPORT Extended BinomialBetween(Extended p, std::uint32_t n, std::uint32_t k1,
                                                     std::uint32_t k2);

/// Fills `probs` with the n + 1 probabilities of 0 to n. It is released before the checks. n <= 0
/// raises rsBinomDistInvalid.
QORVEX_EXPORT void BinomialPDFValues(std::int32_t n, Extended p, TQorFloatVector& probs);

}  // namespace qorvex::inline QorvexStatistics
