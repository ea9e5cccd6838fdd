#pragma once

/// @file
/// The beta distribution with shapes a and b, on [0, 1] or between two given ends.
///
/// The forms with two ends evaluate the distribution on [0, 1] at (x - lower) / (upper - lower),
/// and scale densities and quantiles back.
///
/// - Lower probabilities: I(x; a, b), the regularised incomplete beta function, with relative
///   errors up to about 1e-17.
/// - Upper probabilities: 1 - lower, so small ones lose their digits. BetaDistribution keeps them.
/// - Densities and quantiles: computed by BetaDistribution, to a few units of the 64-bit mantissa.
/// - Ends: x - lower rounds. Near an end other than 0, x itself says little about its distance from
///   the end.
/// - Points outside the support: probabilities are those of the nearer end, densities are 0.
/// - NaN gives NaN, except for p and the ends.
/// - EMathError, in this order: for quantiles rsValue01 unless 0 < p < 1; rsValueGZero if a <= 0
///   or b <= 0; rsInvalidValue unless lower < upper and both ends and their difference are finite.
/// - Then EInvalidOp for shapes below 1e-18 or above 1e15.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The density. At the ends it is the limit, which can be infinite.
[[nodiscard]] QORVEX_EXPORT Extended BetaPDF(Extended x, Extended a, Extended b);
[[nodiscard]] QORVEX_EXPORT Extended BetaPDF(Extended x, Extended a, Extended b, Extended lower,
                                             Extended upper);
/// @}

/// @{
/// Fills the vectors with n + 1 points in equal steps from x_low to x_high, and the density at
/// each.
///
/// - n = 0: one point, x_low. n < 0: no points.
/// - Both vectors are released before the checks.
/// - Cost: O(n).
QORVEX_EXPORT void BetaPDFValues(Extended a, Extended b, Extended x_low, Extended x_high,
                                 std::int32_t n, TQorFloatVector& x_values,
                                 TQorFloatVector& y_values);
QORVEX_EXPORT void BetaPDFValues(Extended a, Extended b, Extended lower, Extended upper,
                                 Extended x_low, Extended x_high, std::int32_t n,
                                 TQorFloatVector& x_values, TQorFloatVector& y_values);
/// @}

/// @{
/// P(X <= x), P(X > x) computed as 1 - less, and the probability between two points in either
/// order. If SameFloat(x1, x2), the latter is 0 without any check of the parameters.
[[nodiscard]] QORVEX_EXPORT Extended BetaDistLess(Extended x, Extended a, Extended b);
[[nodiscard]] QORVEX_EXPORT Extended BetaDistLess(Extended x, Extended a, Extended b,
                                                  Extended lower, Extended upper);
[[nodiscard]] QORVEX_EXPORT Extended BetaDistGreater(Extended x, Extended a, Extended b);
[[nodiscard]] QORVEX_EXPORT Extended BetaDistGreater(Extended x, Extended a, Extended b,
                                                     Extended lower, Extended upper);
[[nodiscard]] QORVEX_EXPORT Extended BetaDistBetween(Extended x1, Extended x2, Extended a,
                                                     Extended b);
[[nodiscard]] QORVEX_EXPORT Extended BetaDistBetween(Extended x1, Extended x2, Extended a,
                                                     Extended b, Extended lower, Extended upper);
/// @}

/// @{
/// The point with the lower probability p, and the point with the upper probability p. The latter
/// is the point with the lower probability 1 - p, so p < 2^-65 raises rsValue01; for smaller p use
/// UpperQuantile of a BetaDistribution.
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistLess(Extended a, Extended b, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistLess(Extended a, Extended b, Extended lower,
                                                     Extended upper, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistGreater(Extended a, Extended b, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistGreater(Extended a, Extended b, Extended lower,
                                                        Extended upper, Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
