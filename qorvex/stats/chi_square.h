#pragma once

/// @file
/// The chi-square distribution with df degrees of freedom.
///
/// Probabilities come from IncompleteGamma(df / 2, x / 2), with its limits: an absolute error of up
/// to 2e-15; above 2000 degrees of freedom a normal approximation, which raises rsValueGZero for
/// points below the centre. Upper ones are formed as 1 - lower, so do not rely on the digits of
/// those below 1e-5. ChiSquareDistribution has none of these limits. Densities and quantiles are
/// computed with it, exact to a few units of the 64-bit mantissa.
///
/// NaN points give NaN.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density, at 0 its limit: infinity for one degree of freedom, 1/2 for two, 0 above.
/// EMathError: rsValueGEZero for x < 0; rsDF for df = 0.
[[nodiscard]] QORVEX_EXPORT Extended ChiSquarePDF(Extended x, std::uint32_t df);

/// n + 1 points from x_low to x_high in equal steps, and the density at each, 0 at negative points:
/// one point at x_low for n = 0, none for a negative n. Both vectors are released first. EMathError
/// rsDF for df = 0. O(n).
QORVEX_EXPORT void ChiSquarePDFValues(std::uint32_t df, Extended x_low, Extended x_high,
                                      std::int32_t n, TQorFloatVector& x_values,
                                      TQorFloatVector& y_values);

/// @{
/// The probability of at most x, of more than x (1 - less), and of the interval between two points
/// in either order, which is 0 for points that SameFloat finds the same, before any check.
/// EMathError: rsValueGEZero for x < 0; rsDF for df = 0; rsValueGZero for df > 2000 where x is
/// below the centre.
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareLess(Extended x, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareGreater(Extended x, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareBetween(Extended x1, Extended x2, std::uint32_t df);
/// @}

/// @{
/// The point with the given lower or upper probability; the upper one is that of 1 - p, so that
/// p < 2^-65 raises rsValue01; use UpperQuantile of a ChiSquareDistribution for smaller ones.
/// EMathError: rsValue01 unless 0 < p < 1; rsDF for df = 0.
[[nodiscard]] QORVEX_EXPORT Extended InvChiSquareLess(std::uint32_t df, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvChiSquareGreater(std::uint32_t df, Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
