#pragma once

/// @file
/// The log-normal distribution. `mean` and `std_dev` are those of ln X.
///
/// - Probabilities and quantiles: those of the normal distribution at ln x, with its limits (see
///   normal.h): do not rely on them where ln x is more than 8.5 standard deviations from the mean,
///   nor on the digits of small tails. LogNormalDistribution keeps all digits.
/// - A standard deviation, or the point of a density, is positive if it exceeds QorTolerance.
/// - NaN gives NaN unless an error is stated for it.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density. EMathError: rsStdDev unless std_dev is positive; then rsValueGZero unless x is
/// positive.
[[nodiscard]] QORVEX_EXPORT Extended LogNormalPDF(Extended x, Extended mean, Extended std_dev);

/// Fills the vectors with n + 1 points in equal steps from x_low to x_high, and the density at
/// each.
///
/// - n = 0: one point, x_low. n < 0: no points.
/// - Both vectors are released before the checks and stay empty after an error.
/// - EMathError: rsStdDev unless std_dev is positive; then rsValueGZero unless x_low, even for n <
///   0, and every other point are positive.
/// - Cost: O(n).
QORVEX_EXPORT void LogNormalPDFValues(Extended mean, Extended std_dev, Extended x_low,
                                      Extended x_high, std::int32_t n, TQorFloatVector& x_values,
                                      TQorFloatVector& y_values);

/// @{
/// P(X < x), P(X > x) computed as 1 - less, and the probability between two points in either order.
///
/// - If SameFloat(x1, x2), the probability between them is 0 without any check.
/// - EMathError rsStdDev unless std_dev is positive; then EZeroDivide if x = 0 and EInvalidOp if x
///   < 0, which have no logarithm.
[[nodiscard]] QORVEX_EXPORT Extended LogNormalLess(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalGreater(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalBetween(Extended mean, Extended std_dev, Extended x1,
                                                      Extended x2);
/// @}

/// @{
/// The point with the lower probability p, and the point with the upper probability p: exp of the
/// point of the normal distribution, with the same errors. Then EOverflow if the point exceeds the
/// extended range.
[[nodiscard]] QORVEX_EXPORT Extended InvLogNormalLess(Extended mean, Extended std_dev, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvLogNormalGreater(Extended mean, Extended std_dev,
                                                         Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
