#pragma once

/// @file
/// Student's t distribution with df degrees of freedom.
///
/// Probabilities come from S = 1 - I(df / (t^2 + df); df/2, 1/2), the probability of [-|t|, |t|].
/// Near 0 that quotient rounds to 1: below |t| = 2e-10 sqrt(df) every probability is 0.5, there
/// with an absolute error of up to 1e-10 sqrt(df). For few degrees of freedom it has fallen to
/// 4e-15 at 1e-3 and to 2e-18 above 1; for many it is some 5e-20 df wherever t is moderate, 2e-12
/// for 4e9. Tails on both sides, (1 - S) / 2 and 1 - less, are differences of numbers near 1 with
/// an absolute error of 1e-19 and more: do not rely on the digits of those below 1e-10.
/// StudentTDistribution keeps all digits everywhere. Densities and quantiles are computed with it,
/// exact to a few units of the 64-bit mantissa.
///
/// NaN points give NaN.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density. EMathError rsDF for df = 0.
[[nodiscard]] QORVEX_EXPORT Extended StudentTPDF(Extended t, std::uint32_t df);

/// n + 1 points from t_low to t_high in equal steps, and the density at each: one point at t_low
/// for n = 0, none for a negative n. Both vectors are released first. EMathError rsDF for df = 0.
/// O(n).
QORVEX_EXPORT void StudentTPDFValues(std::uint32_t df, Extended t_low, Extended t_high,
                                     std::int32_t n, TQorFloatVector& t_values,
                                     TQorFloatVector& y_values);

/// @{
/// The probability of at most t, of more than t (1 - less), and of the interval between two points
/// in either order, which is 0 for points that SameFloat finds the same, before any check.
/// EMathError rsDF for df = 0.
[[nodiscard]] QORVEX_EXPORT Extended StudentTLess(Extended t, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended StudentTGreater(Extended t, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended StudentTBetween(Extended t1, Extended t2, std::uint32_t df);
/// @}

/// @{
/// The point with the given lower or upper probability; the upper one is that of 1 - p, so that
/// p < 2^-65 raises rsValue01; use UpperQuantile of a StudentTDistribution for smaller ones.
/// EMathError: rsValue01 unless 0 < p < 1; rsDF for df = 0.
[[nodiscard]] QORVEX_EXPORT Extended InvStudentTLess(std::uint32_t df, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvStudentTGreater(std::uint32_t df, Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
