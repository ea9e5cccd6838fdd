#pragma once

/// @file
/// The hypergeometric distribution: the number of successes in a sample of sample_size, drawn
/// without replacement from a population of pop_size of which `successes` are successes.
///
/// A probability is C(successes, x) C(pop_size - successes, sample_size - x) / C(pop_size,
/// sample_size) in this order, and a lower probability the sum of these from 0 on. This has limits,
/// which HypergeometricDistribution does not have:
///
/// - C(pop_size, sample_size) may be beyond the extended range, which raises EMathError with
///   rsBinomOverflowed; a sample of half the population does so from pop_size = 16392 on.
/// - Upper probabilities are 1 less the lower ones, with an absolute error of about 1e-19
///   sample_size; small ones lose their digits and can be negative by as much, where the sum has
///   come out above 1.
///
/// EMathError: rsHyperGeometricInvalid unless pop_size > 0, sample_size > 0 and neither sample_size
/// nor successes exceeds pop_size; then rsBinomOverflowed. A probability costs three BinomialCoeff.
/// A sum costs two for each count.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// P(X = x); 0 for a count that cannot be: above the sample or the successes, or so low that the
/// rest of the sample would exceed the failures.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricEq(std::uint32_t pop_size,
                                                      std::uint32_t sample_size,
                                                      std::uint32_t successes, std::uint32_t x);

/// P(X < x); 0 for x = 0. A count above the sample or the successes raises rsHyperGeometricInvalid.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricLess(std::uint32_t pop_size,
                                                        std::uint32_t sample_size,
                                                        std::uint32_t successes, std::uint32_t x);

/// P(X > x), which is 1 - HyperGeometricLess for x + 1; 0 for the largest possible count. A count
/// above the sample or the successes raises rsHyperGeometricInvalid.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricGreater(std::uint32_t pop_size,
                                                           std::uint32_t sample_size,
                                                           std::uint32_t successes,
                                                           std::uint32_t x);

/// P(x1 < X < x2), both ends excluded, when the counts ascend; P(x2 <= X <= x1), both included,
/// when they descend; P(X = x1) when they are equal. Of different counts none may be above the
/// sample or the successes, which raises rsHyperGeometricInvalid.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricBetween(std::uint32_t pop_size,
                                                           std::uint32_t sample_size,
                                                           std::uint32_t successes,
                                                           std::uint32_t x1, std::uint32_t x2);

/// The sample_size + 1 probabilities of 0 to sample_size. The output is released before anything is
/// checked.
QORVEX_EXPORT void HyperGeometricPDFValues(std::uint32_t pop_size, std::uint32_t sample_size,
                                           std::uint32_t successes, TQorFloatVector& probs);

}  // namespace qorvex::inline QorvexStatistics
