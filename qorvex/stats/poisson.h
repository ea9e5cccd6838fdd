#pragma once

/// @file
/// The Poisson distribution with mean lambda.
///
/// A probability is exp(-lambda) lambda^k / k!, computed in this order; a lower probability is the
/// sum of the probabilities from 0 on. If exp(-lambda) or lambda^k leaves the normal extended
/// range, which happens for lambda above about 11355 or k near a thousand and more, the probability
/// is the exponential of its logarithm and has up to 16 correct digits. This order has limits,
/// which PoissonDistribution does not have:
///
/// - Factorials end at 1754: larger counts raise EMathError with rsFactOverflow.
/// - Upper probabilities are 1 - lower, with an absolute error of about 1e-19 lambda. Small ones
///   lose their digits, and they are negative if the sum has come out above 1.
///
/// EMathError: rsPoissonInvalid if lambda <= 0; then rsFactOverflow.
///
/// - NaN gives NaN, except that the table rejects it and PoissonLess(NaN, 0) is 0.
/// - Infinite lambda: every count has probability 0.
/// - Cost: an exponential, a power and k multiplications for a probability; one power a count for a
///   sum.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// P(X = k).
[[nodiscard]] QORVEX_EXPORT Extended PoissonEq(Extended lambda, std::uint32_t k);

/// P(X < k); 0 for k = 0.
[[nodiscard]] QORVEX_EXPORT Extended PoissonLess(Extended lambda, std::uint32_t k);

/// P(X > k) = 1 - PoissonLess(lambda, k + 1).
[[nodiscard]] QORVEX_EXPORT Extended PoissonGreater(Extended lambda, std::uint32_t k);

/// The probability between two counts:
///
/// - P(X = k1) if SameFloat finds the counts equal in single precision; otherwise
/// - k1 < k2: P(k1 < X < k2), both ends excluded;
/// - k1 > k2: P(k2 <= X <= k1), both ends included.
[[nodiscard]] QORVEX_EXPORT Extended PoissonBetween(Extended lambda, std::uint32_t k1,
                                                    std::uint32_t k2);

/// Fills the vectors with n consecutive counts about m = trunc(lambda), and their probabilities: n
/// div 2 counts above m, the others from m downwards. If these would go below 0, the table is
/// shorter and starts at 0. Both vectors are released before the checks. EMathError:
/// rsPoissonInvalid unless n > 0 and lambda > 0 (NaN included); then rsFactOverflow.
QORVEX_EXPORT void PoissonPDFValues(std::int32_t n, Extended lambda, TQorLIntVector& ks,
                                    TQorFloatVector& probs);

}  // namespace qorvex::inline QorvexStatistics
