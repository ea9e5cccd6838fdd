#pragma once

/// @file
/// The exponential distribution with the given mean.
///
/// - Lower probabilities: 1 - exp(-x / mean). Upper probabilities: 1 - lower. Both have an absolute
///   error of about 1e-19, so points far below the mean and upper tails lose digits.
///   ExponentialDistribution keeps them.
/// - EMathError rsExpDistInvalid unless mean > 0 and x >= 0 (NaN included).
/// - Then EOverflow if 1 / mean exceeds the extended range, which happens for means below about
///   8.4e-4933.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density exp(-x / mean) / mean.
[[nodiscard]] QORVEX_EXPORT Extended ExponentialPDF(Extended x, Extended mean);

/// Fills the vectors with n + 1 points in equal steps from x_low to x_high, and the density at
/// each.
///
/// - n = 0: one point, x_low. n < 0: no points.
/// - Negative points have the density 0.
/// - Both vectors are released before the checks. EMathError rsExpDistInvalid if mean <= 0; then
///   EOverflow as above. A NaN mean gives NaN.
/// - Cost: O(n).
QORVEX_EXPORT void ExponentialPDFValues(Extended mean, Extended x_low, Extended x_high,
                                        std::int32_t n, TQorFloatVector& x_values,
                                        TQorFloatVector& y_values);

/// @{
/// P(X < x), P(X > x) computed as 1 - less, and the probability between two points in either order.
/// If SameFloat(x1, x2), the latter is 0 without any check.
[[nodiscard]] QORVEX_EXPORT Extended ExponentialLess(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialGreater(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialBetween(Extended mean, Extended x1, Extended x2);
/// @}

}  // namespace qorvex::inline QorvexStatistics
