#pragma once

/// @file
/// The hypergeometric distribution: the number of successes in a sample of sample_size, drawn
/// without replacement from a population of pop_size that contains `successes` successes.
///
/// A probability is C(successes, x) C(pop_size - successes, sample_size - x) / C(pop_size,
/// sample_size), computed in this order; a lower probability is the sum of the probabilities from 0
/// on. This order has limits, which HypergeometricDistribution does not have:
///
/// - C(pop_size, sample_size) can exceed the extended range, which raises EMathError with
///   rsBinomOverflowed. For a sample of half the population this happens from pop_size = 16392 on.
/// - Upper probabilities are 1 - lower, with an absolute error of about 1e-19 sample_size. Small
///   ones lose their digits, and they are negative if the sum has come out above 1.
///
/// EMathError: rsHyperGeometricInvalid unless pop_size > 0, sample_size > 0, sample_size <=
/// pop_size and successes <= pop_size; then rsBinomOverflowed.
///
/// Cost: three BinomialCoeff for a probability; a sum computes two for each count.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// P(X = x); 0 for an impossible count: one that exceeds the sample or the successes, or leaves a
/// rest of the sample that exceeds the failures.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricEq(std::uint32_t pop_size,
                                                      std::uint32_t sample_size,
                                                      std::uint32_t successes, std::uint32_t x);

/// P(X < x); 0 for x = 0. EMathError rsHyperGeometricInvalid if x exceeds the sample or the
/// successes.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricLess(std::uint32_t pop_size,
                                                        std::uint32_t sample_size,
                                                        std::uint32_t successes, std::uint32_t x);

/// P(X > x) = 1 - HyperGeometricLess for x + 1; 0 for the largest possible count. EMathError
/// rsHyperGeometricInvalid if x exceeds the sample or the successes.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricGreater(std::uint32_t pop_size,
                                                           std::uint32_t sample_size,
                                                           std::uint32_t successes,
                                                           std::uint32_t x);

/// The probability between two counts:
///
/// - x1 < x2: P(x1 < X < x2), both ends excluded;
/// - x1 > x2: P(x2 <= X <= x1), both ends included;
/// - x1 = x2: P(X = x1), also for impossible counts.
///
/// EMathError rsHyperGeometricInvalid if different counts exceed the sample or the successes.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricBetween(std::uint32_t pop_size,
                                                           std::uint32_t sample_size,
                                                           std::uint32_t successes,
                                                           std::uint32_t x1, std::uint32_t x2);

/// Fills `probs` with the sample_size + 1 probabilities of 0 to sample_size. It is released before
/// the checks.
QORVEX_EXPORT void HyperGeometricPDFValues(std::uint32_t pop_size, std::uint32_t sample_size,
                                           std::uint32_t successes, TQorFloatVector& probs);

}  // namespace qorvex::inline QorvexStatistics
