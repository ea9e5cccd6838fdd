#pragma once

/// @file
/// The log-normal distribution; mean and standard deviation are those of ln X.
///
/// Probabilities and quantiles are those of the normal distribution at ln x, with its limits: do
/// not rely on them where ln x is more than 8.5 standard deviations from the mean, nor on the
/// digits of a small tail (see normal.h). LogNormalDistribution keeps all digits.
///
/// NaN gives NaN where no error is stated for it. A standard deviation, and the point of a density,
/// count as positive when they exceed QorTolerance.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density. EMathError: rsStdDev unless std_dev is positive; rsValueGZero unless x is.
[[nodiscard]] QORVEX_EXPORT Extended LogNormalPDF(Extended x, Extended mean, Extended std_dev);

/// n + 1 points from x_low to x_high in equal steps, and the density at each: one point at x_low
/// for n = 0, none for a negative n. Both vectors are released first and stay so after an error.
/// EMathError: rsStdDev unless std_dev is positive; rsValueGZero unless x_low and every other point
/// are. O(n).
QORVEX_EXPORT void LogNormalPDFValues(Extended mean, Extended std_dev, Extended x_low,
                                      Extended x_high, std::int32_t n, TQorFloatVector& x_values,
                                      TQorFloatVector& y_values);

/// @{
/// The probability of less than x, of more than x (1 - less), and of the interval between two
/// points in either order, which is 0 for points that SameFloat finds the same, before any
/// check. EMathError rsStdDev unless std_dev is positive; EZeroDivide for x = 0 and EInvalidOp for
/// a negative x, which have no logarithm.
[[nodiscard]] QORVEX_EXPORT Extended LogNormalLess(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalGreater(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalBetween(Extended mean, Extended std_dev, Extended x1,
                                                      Extended x2);
/// @}

/// @{
/// The point with the given lower or upper probability: exp of that of the normal distribution, and
/// its errors. EOverflow when it is beyond the extended range.
[[nodiscard]] QORVEX_EXPORT Extended InvLogNormalLess(Extended mean, Extended std_dev, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvLogNormalGreater(Extended mean, Extended std_dev,
                                                         Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
