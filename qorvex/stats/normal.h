#pragma once

/// @file
/// The normal distribution: density, probabilities and quantiles.
///
/// Limits of the probabilities, which all come from the power series of NormalLess:
///
/// - Up to z = 8.5 the error is at most six units of the 64-bit mantissa.
/// - Beyond that, the hundred terms do not suffice: the result is too small by 3e-16 at 9 and by
///   2e-13 at 9.5. From about 9.95 on it is 0.5 instead of nearly 1, because the first terms
///   already pass the test of convergence. Do not rely on results more than 8.5 standard deviations
///   from the mean.
/// - Upper tails are 1 - lower, and lower tails below the mean are 1 - upper. Their absolute error
///   is about 1e-19, so a tail of 1e-10 has nine digits left. NormalDistribution keeps all digits
///   in both tails.
///
/// Limits of the quantiles:
///
/// - They have 16 digits: the relative error is at most 8e-17 for p >= 2.5e-317. It grows below, to
///   2e-14 at 1e-400 and 2e-8 at 1e-4930.
/// - Upper quantiles are those of 1 - p. Small p therefore lose their digits, and p < 2^-65 raises
///   rsValue01. NormalDistribution has neither limit.
///
/// For all routines:
///
/// - A standard deviation is positive if it exceeds QorTolerance.
/// - NaN gives NaN unless an error is stated for it.
/// - A density is also NaN if both (x - mean)^2 and the variance exceed the extended range, as for
///   NormalPDF(1e3000, 0, 1e3000). The density of NormalDistribution is not.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density of the standard normal distribution, exp(-x^2 / 2) / sqrt(2 pi); 0 for infinite x.
[[nodiscard]] QORVEX_EXPORT Extended NormalZ(Extended x);

/// The density. EMathError rsStdDev unless std_dev is positive.
[[nodiscard]] QORVEX_EXPORT Extended NormalPDF(Extended x, Extended mean, Extended std_dev);

/// Fills the vectors with n + 1 points in equal steps from x_low to x_high, and the density at
/// each.
///
/// - n = 0: one point, x_low. n < 0: no points.
/// - Both vectors are released before the check. EMathError rsStdDev unless std_dev is positive.
/// - Cost: O(n).
QORVEX_EXPORT void NormalPDFValues(Extended mean, Extended std_dev, Extended x_low, Extended x_high,
                                   std::int32_t n, TQorFloatVector& x_values,
                                   TQorFloatVector& y_values);

/// P(Z < z) of a standard normal variable, by the series 1/2 + phi(z) (z + z^3/3 + z^5/(3*5) +
/// ...). It ends when the result changes by at most 1e-18, at the latest after a hundred terms.
///
/// - EMathError rsValueGZero if z < 0.
/// - If the density phi(z) underflows to 0, and for infinite z: 0.5.
[[nodiscard]] QORVEX_EXPORT Extended NormalLess(Extended z);
/// P(Z > z) = 1 - NormalLess(z).
[[nodiscard]] QORVEX_EXPORT Extended NormalGreater(Extended z);

/// @{
/// P(X < x), P(X > x) computed as 1 - less, and the probability between two points in either order.
///
/// - If SameFloat(x1, x2), the probability between them is 0 without any check.
/// - EMathError rsStdDev unless std_dev is positive.
[[nodiscard]] QORVEX_EXPORT Extended NormalDistLess(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalDistGreater(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalDistBetween(Extended mean, Extended std_dev, Extended x1,
                                                       Extended x2);
/// @}

/// @{
/// The point of the standard normal distribution with the lower, or the upper, probability p.
///
/// - EMathError rsValue01 unless 0 < p < 1.
/// - Source: Wichura (1988), "Algorithm AS 241: the percentage points of the normal distribution",
///   Applied Statistics 37, 477-484.
[[nodiscard]] QORVEX_EXPORT Extended InvNormalLess(Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvNormalGreater(Extended p);
/// @}

/// @{
/// The point with the lower, or the upper, probability p. EMathError: rsValue01 if p <= 0 or p >=
/// 1; then rsStdDev if std_dev is negative or zero within QorTolerance; then rsValue01 if p is NaN.
[[nodiscard]] QORVEX_EXPORT Extended InvNormalDistLess(Extended mean, Extended std_dev, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvNormalDistGreater(Extended mean, Extended std_dev,
                                                          Extended p);
/// @}

/// The critical value of the standard normal distribution: the point with the upper probability
/// alpha. EMathError rsValue01 unless 0 < alpha < 1.
[[nodiscard]] QORVEX_EXPORT Extended ZAlpha(Extended alpha);

}  // namespace qorvex::inline QorvexStatistics
