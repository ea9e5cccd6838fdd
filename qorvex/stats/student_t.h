#pragma once

/// @file
/// Student's t distribution with df degrees of freedom.
///
/// - Probabilities are computed from S = 1 - I(df / (t^2 + df); df/2, 1/2), the probability of
///   [-|t|, |t|].
/// - Near t = 0 the quotient rounds to 1. Every probability is 0.5 for |t| < 2e-10 sqrt(df), with
///   an absolute error of up to 1e-10 sqrt(df).
/// - For few degrees of freedom the error falls to 4e-15 at t = 1e-3 and to 2e-18 above 1. For many
///   it is about 5e-20 df wherever t is moderate: 2e-12 for df = 4e9.
/// - Tails are (1 - S) / 2 and 1 - less, with an absolute error of at least 1e-19, so those below
///   1e-10 have few digits or none. StudentTDistribution keeps all digits everywhere.
/// - Densities and quantiles: computed by StudentTDistribution, to a few units of the 64-bit
///   mantissa.
/// - NaN points give NaN.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density. EMathError rsDF if df = 0.
[[nodiscard]] QORVEX_EXPORT Extended StudentTPDF(Extended t, std::uint32_t df);

/// Fills the vectors with n + 1 points in equal steps from t_low to t_high, and the density at
/// each.
///
/// - n = 0: one point, t_low. n < 0: no points.
/// - Both vectors are released before the check. EMathError rsDF if df = 0.
/// - Cost: O(n).
QORVEX_EXPORT void StudentTPDFValues(std::uint32_t df, Extended t_low, Extended t_high,
                                     std::int32_t n, TQorFloatVector& t_values,
                                     TQorFloatVector& y_values);

/// @{
/// P(T <= t), P(T > t) computed as 1 - less, and the probability between two points in either
/// order.
///
/// - If SameFloat(t1, t2), the probability between them is 0 without any check.
/// - EMathError rsDF if df = 0.
[[nodiscard]] QORVEX_EXPORT Extended StudentTLess(Extended t, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended StudentTGreater(Extended t, std::uint32_t df);
[[nodiscard]] QORVEX_EXPORT Extended StudentTBetween(Extended t1, Extended t2, std::uint32_t df);
/// @}

/// @{
/// The point with the lower probability p, and the point with the upper probability p.
///
/// - The latter is the point with the lower probability 1 - p, so p < 2^-65 raises rsValue01; for
///   smaller p use UpperQuantile of a StudentTDistribution.
/// - EMathError: rsValue01 unless 0 < p < 1; then rsDF if df = 0.
[[nodiscard]] QORVEX_EXPORT Extended InvStudentTLess(std::uint32_t df, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvStudentTGreater(std::uint32_t df, Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
