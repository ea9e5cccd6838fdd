#pragma once

/// @file
/// The normal distribution: density, probabilities and quantiles.
///
/// Every probability comes from the power series of NormalLess. Up to 8.5 it is right within six
/// units of the 64-bit mantissa; then its hundred terms do not suffice (3e-16 too little at 9,
/// 2e-13 at 9.5), and from about 9.95 on, where the first terms are already below the test of
/// convergence, it is 0.5 instead of nearly 1. So do not rely on NormalLess and what is made of it
/// more than 8.5 standard deviations from the mean. Upper tails are formed as 1 - lower, and lower
/// tails below the mean as 1 - upper: their absolute error is some 1e-19, so a tail of 1e-10 has
/// nine digits left. NormalDistribution keeps all digits in both tails.
///
/// Quantiles have 16 digits: 8e-17 relative error at worst, for probabilities down to 2.5e-317, and
/// fewer below (2e-14 at 1e-400, 2e-8 at 1e-4930). Upper quantiles are those of 1 - p, so p loses
/// its digits when it is small and raises rsValue01 below 2^-65. NormalDistribution has
/// neither limit.
///
/// NaN gives NaN where no error is stated for it. A density is NaN, too, where (x - mean)^2 and the
/// variance are both beyond the extended range, as NormalPDF(1e3000, 0, 1e3000) is;
/// that of NormalDistribution is not. A standard deviation counts as positive when it exceeds
/// QorTolerance.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density of the standard normal distribution; 0 for infinite x.
[[nodiscard]] QORVEX_EXPORT Extended NormalZ(Extended x);

/// The density. EMathError rsStdDev unless std_dev is positive.
[[nodiscard]] QORVEX_EXPORT Extended NormalPDF(Extended x, Extended mean, Extended std_dev);

/// n + 1 points from x_low to x_high in equal steps, and the density at each: one point at x_low
/// for n = 0, none for a negative n. Both vectors are released first. EMathError rsStdDev unless
/// std_dev is positive. O(n).
QORVEX_EXPORT void NormalPDFValues(Extended mean, Extended std_dev, Extended x_low, Extended x_high,
                                   std::int32_t n, TQorFloatVector& x_values,
                                   TQorFloatVector& y_values);

/// The probability that a standard normal variable is less than z, by the series
/// 1/2 + phi(z) (z + z^3/3 + z^5/(3*5) + ...), which ends when a partial result changes by at most
/// 1e-18, at the latest after a hundred terms. EMathError rsValueGZero for z < 0. 0.5 where the
/// density underflows to 0, infinity included.
[[nodiscard]] QORVEX_EXPORT Extended NormalLess(Extended z);
/// 1 - NormalLess(z).
[[nodiscard]] QORVEX_EXPORT Extended NormalGreater(Extended z);

/// @{
/// The probability of less than x, of more than x (1 - less), and of the interval between two
/// points in either order, which is 0 for points that SameFloat finds the same, before any
/// check. EMathError rsStdDev unless std_dev is positive.
[[nodiscard]] QORVEX_EXPORT Extended NormalDistLess(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalDistGreater(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalDistBetween(Extended mean, Extended std_dev, Extended x1,
                                                       Extended x2);
/// @}

/// @{
/// The point of the standard normal distribution with the given lower or upper probability.
/// EMathError rsValue01 unless 0 < p < 1. Wichura (1988), "Algorithm AS 241: the percentage points
/// of the normal distribution", Applied Statistics 37, 477-484.
[[nodiscard]] QORVEX_EXPORT Extended InvNormalLess(Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvNormalGreater(Extended p);
/// @}

/// @{
/// The point with the given lower or upper probability. EMathError: rsValue01 for p <= 0 or p >= 1;
/// rsStdDev for a standard deviation that is negative or zero within QorTolerance; rsValue01 for a
/// NaN probability.
[[nodiscard]] QORVEX_EXPORT Extended InvNormalDistLess(Extended mean, Extended std_dev, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvNormalDistGreater(Extended mean, Extended std_dev,
                                                          Extended p);
/// @}

/// The critical value of the standard normal distribution that is exceeded with probability alpha.
/// EMathError rsValue01 unless 0 < alpha < 1.
[[nodiscard]] QORVEX_EXPORT Extended ZAlpha(Extended alpha);

}  // namespace qorvex::inline QorvexStatistics
