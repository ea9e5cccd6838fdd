#pragma once

/// @file
/// The exponential distribution with the given mean.
///
/// Lower probabilities are formed as 1 - exp(-x / mean) and upper ones as 1 - lower, so either has
/// an absolute error of some 1e-19: points far below the mean and upper tails lose digits.
/// ExponentialDistribution keeps them all.
///
/// EMathError rsExpDistInvalid unless mean > 0 and x >= 0, and so for NaN; then EOverflow where
/// 1 / mean is beyond the extended range, for means below some 8.4e-4933.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density.
[[nodiscard]] QORVEX_EXPORT Extended ExponentialPDF(Extended x, Extended mean);

/// n + 1 points from x_low to x_high in equal steps, and the density at each, 0 at negative points:
/// one point at x_low for n = 0, none for a negative n. Both vectors are released first. EMathError
/// rsExpDistInvalid for mean <= 0, then EOverflow as above; a NaN mean gives NaN. O(n).
QORVEX_EXPORT void ExponentialPDFValues(Extended mean, Extended x_low, Extended x_high,
                                        std::int32_t n, TQorFloatVector& x_values,
                                        TQorFloatVector& y_values);

/// @{
/// The probability of less than x, of more than x (1 - less), and of the interval between two
/// points in either order, which is 0 for points that SameFloat finds the same, before any
/// check.
[[nodiscard]] QORVEX_EXPORT Extended ExponentialLess(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialGreater(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialBetween(Extended mean, Extended x1, Extended x2);
/// @}

}  // namespace qorvex::inline QorvexStatistics
