#pragma once

/// @file
/// The F distribution with df1 degrees of freedom in the numerator and df2 in the denominator.
///
/// - Lower probabilities: 1 - I(df2 / (df2 + df1 f); df2/2, df1/2). Upper probabilities: 1 - lower.
///   Both have an absolute error, so small ones have few digits or none. The error is about 4e-19
///   for f >= 1 and few degrees of freedom, 3e-15 for 4e9 degrees of freedom, and 1e-18 at f =
///   0.01. Towards f = 0, where the quotient rounds to 1, it grows: with df1 = 1 up to 2e-10, at f
///   near 1e-18. FDistribution keeps all digits.
/// - Densities and quantiles: computed by FDistribution, to a few units of the 64-bit mantissa.
/// - NaN points give NaN.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density. At 0 it is the limit: infinity for df1 = 1, 1 for df1 = 2, 0 for larger df1.
/// EMathError: rsValueGZero if f < 0; then rsDF if df1 = 0 or df2 = 0.
[[nodiscard]] QORVEX_EXPORT Extended FDistPDF(Extended f, std::uint32_t df1, std::uint32_t df2);

/// Fills the vectors with n + 1 points in equal steps from f_low to f_high, and the density at
/// each.
///
/// - n = 0: one point, f_low. n < 0: no points.
/// - Negative points have the density 0.
/// - Both vectors are released before the check. EMathError rsDF if df1 = 0 or df2 = 0.
/// - Cost: O(n).
QORVEX_EXPORT void FDistPDFValues(std::uint32_t df1, std::uint32_t df2, Extended f_low,
                                  Extended f_high, std::int32_t n, TQorFloatVector& f_values,
                                  TQorFloatVector& y_values);

/// @{
/// P(F <= f), P(F > f) computed as 1 - less, and the probability between two points in either
/// order.
///
/// - If SameFloat(f1, f2), the probability between them is 0 without any check.
/// - EMathError: rsValueGZero if f <= 0, even for f = 0, where the probability would be 0; then
///   rsDF if df1 = 0 or df2 = 0.
[[nodiscard]] QORVEX_EXPORT Extended FDistLess(Extended f, std::uint32_t df1, std::uint32_t df2);
[[nodiscard]] QORVEX_EXPORT Extended FDistGreater(Extended f, std::uint32_t df1, std::uint32_t df2);
[[nodiscard]] QORVEX_EXPORT Extended FDistBetween(Extended f1, Extended f2, std::uint32_t df1,
                                                  std::uint32_t df2);
/// @}

/// @{
/// The point with the lower probability p, and the point with the upper probability p.
///
/// - The latter is the point with the lower probability 1 - p, so p < 2^-65 raises rsValue01; for
///   smaller p use UpperQuantile of an FDistribution.
/// - EMathError: rsValue01 unless 0 < p < 1; then rsDF if df1 = 0 or df2 = 0.
[[nodiscard]] QORVEX_EXPORT Extended InvFDistLess(std::uint32_t df1, std::uint32_t df2, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvFDistGreater(std::uint32_t df1, std::uint32_t df2,
                                                     Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
