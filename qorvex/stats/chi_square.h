#pragma once

/// @file
/// The chi-square distribution with df degrees of freedom.
///
/// - Lower probabilities: IncompleteGamma(df/2, x/2), with its limits. The absolute error is up to
///   2e-15. Above 2000 degrees of freedom a normal approximation is used, which raises rsValueGZero
///   for points below the centre.
/// - Upper probabilities: 1 - lower, so those below 1e-5 have few digits or none.
/// - ChiSquareDistribution has none of these limits. Densities and quantiles are computed by it, to
///   a few units of the 64-bit mantissa.
/// - NaN points give NaN.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density. At 0 it is the limit: infinity for df = 1, 1/2 for df = 2, 0 for larger df.
/// EMathError: rsValueGEZero if x < 0; then rsDF if df = 0.
[[nodiscard]] QORVEX_EXPORT Extended ChiSquarePDF(Extended x, std::uint32_t df);

/// Fills the vectors with n + 1 points in equal steps from x_low to x_high, and the density at
/// each.
///
/// - n = 0: one point, x_low. n < 0: no points.
/// - Negative points have the density 0.
/// - Both vectors are released before the check. EMathError rsDF if df = 0.
/// - Cost: O(n).
QORVEX_EXPORT void ChiSquarePDFValues(std::uint32_t df, Extended x_low, Extended x_high,
                                      std::int32_t n, TQorFloatVector& x_values,
                                      TQorFloatVector& y_values);

/// @{
/// P(X <= x), P(X > x) computed as 1 - less, and the probability between two points in either
/// order.
///
/// - If SameFloat(x1, x2), the probability between them is 0 without any check.
/// - EMathError: rsValueGEZero if x < 0; then rsDF if df = 0; then rsValueGZero if df > 2000 and x
///   is below the centre.
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareLess(Extended x, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareGreater(Extended x, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareBetween(Extended x1, Extended x2, std::uint32_t df);
/// @}

/// @{
/// The point with the lower probability p, and the point with the upper probability p.
///
/// - The latter is the point with the lower probability 1 - p, so p < 2^-65 raises rsValue01; for
///   smaller p use UpperQuantile of a ChiSquareDistribution.
/// - EMathError: rsValue01 unless 0 < p < 1; then rsDF if df = 0.
[[nodiscard]] QORVEX_EXPORT Extended InvChiSquareLess(std::uint32_t df, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvChiSquareGreater(std::uint32_t df, Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
