#pragma once

/// @file
/// The Poisson distribution of counts with mean lambda.
///
/// A probability is exp(-lambda) lambda^k / k! in this order, and a lower probability the sum of
/// these from 0 on. Where exp(-lambda) or lambda^k is beyond the normal extended range, for lambda
/// above about 11355 or k near a thousand and more, the probability is the exponential of its
/// logarithm, with up to 16 correct digits. This has limits, which PoissonDistribution
/// does not have:
///
/// - Factorials end at 1754: a count above it raises EMathError with rsFactOverflow.
/// - Upper probabilities are 1 less the lower ones, with an absolute error of about 1e-19 lambda;
///   small ones lose their digits and can be negative by as much, where the sum has come out above
///   1.
///
/// EMathError: rsPoissonInvalid for lambda <= 0, then rsFactOverflow. NaN gives NaN, except in the
/// table, which rejects it, and in PoissonLess for k = 0; for an infinite lambda every count has
/// probability 0. A probability costs an exponential, a power and k multiplications; a sum one
/// power a count.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// P(X = k).
[[nodiscard]] QORVEX_EXPORT Extended PoissonEq(Extended lambda, std::uint32_t k);

/// P(X < k); 0 for k = 0.
[[nodiscard]] QORVEX_EXPORT Extended PoissonLess(Extended lambda, std::uint32_t k);

/// P(X > k), which is 1 - PoissonLess(lambda, k + 1).
[[nodiscard]] QORVEX_EXPORT Extended PoissonGreater(Extended lambda, std::uint32_t k);

/// P(k1 < X < k2), both ends excluded, when the counts ascend; P(k2 <= X <= k1), both included,
/// when they descend; P(X = k1) when SameFloat finds them equal in single precision.
[[nodiscard]] QORVEX_EXPORT Extended PoissonBetween(Extended lambda, std::uint32_t k1,
                                                    std::uint32_t k2);

/// The probabilities of n consecutive counts about the mean m = trunc(lambda): n div 2 counts above
/// it and the others from it downwards, or fewer, since none is below 0. The outputs are released
/// before anything is checked; rsPoissonInvalid unless n > 0 and lambda > 0.
QORVEX_EXPORT void PoissonPDFValues(std::int32_t n, Extended lambda, TQorLIntVector& ks,
                                    TQorFloatVector& probs);

}  // namespace qorvex::inline QorvexStatistics
