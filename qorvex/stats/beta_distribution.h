#pragma once

/// @file
/// The beta distribution with shapes a and b, on [0, 1] or between two given ends.
///
/// The forms with a lower and an upper end scale the point x to (x - lower) / (upper - lower), and
/// densities and quantiles back. That difference rounds: near an end other than 0 the point itself
/// says little about its distance from the end.
///
/// Lower probabilities are the incomplete beta function, good to some 1e-17 of themselves. Upper
/// ones are formed as 1 - lower: do not rely on the digits of small ones. BetaDistribution keeps
/// them. Densities and quantiles are computed with it, exact to a few units of the 64-bit mantissa.
///
/// EMathError, in this order: for quantiles rsValue01 unless 0 < p < 1; rsValueGZero unless a and b
/// are positive; rsInvalidValue unless the upper end is above the lower, both are finite, and their
/// difference is within the extended range. EInvalidOp for shapes below 1e-18 and above 1e15.
/// Points outside the support are no error: probabilities take them as the nearer end, and their
/// density is 0. NaN gives NaN, except for p and the ends.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The density, at the ends its limit, infinity included.
[[nodiscard]] QORVEX_EXPORT Extended BetaPDF(Extended x, Extended a, Extended b);
[[nodiscard]] QORVEX_EXPORT Extended BetaPDF(Extended x, Extended a, Extended b, Extended lower,
                                             Extended upper);
/// @}

/// @{
/// n + 1 points from x_low to x_high in equal steps, and the density at each: one point at x_low
/// for n = 0, none for a negative n. Both vectors are released first. O(n).
QORVEX_EXPORT void BetaPDFValues(Extended a, Extended b, Extended x_low, Extended x_high,
                                 std::int32_t n, TQorFloatVector& x_values,
                                 TQorFloatVector& y_values);
QORVEX_EXPORT void BetaPDFValues(Extended a, Extended b, Extended lower, Extended upper,
                                 Extended x_low, Extended x_high, std::int32_t n,
                                 TQorFloatVector& x_values, TQorFloatVector& y_values);
/// @}

/// @{
/// The probability of at most x, of more than x (1 - less), and of the interval between two points
/// in either order, which is 0, before any check, for points that are the same by SameFloat.
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
/// The point with the given lower or upper probability; the upper one is that of 1 - p, so that
/// p < 2^-65 raises rsValue01; use UpperQuantile of a BetaDistribution for smaller ones.
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistLess(Extended a, Extended b, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistLess(Extended a, Extended b, Extended lower,
                                                     Extended upper, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistGreater(Extended a, Extended b, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvBetaDistGreater(Extended a, Extended b, Extended lower,
                                                        Extended upper, Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
