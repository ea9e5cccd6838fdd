#pragma once

/// @file
/// The F distribution with df1 degrees of freedom in the numerator and df2 in the denominator.
///
/// Lower probabilities are formed as 1 - I(df2 / (df2 + df1 f); df2/2, df1/2) and upper ones as
/// 1 - lower, so either has an absolute error, and small ones have few digits or none: some 4e-19
/// for f from 1 up and few degrees of freedom, 3e-15 for 4e9 of them, 1e-18 at 0.01, and more
/// towards 0, where that quotient rounds to 1 (with df1 = 1 up to 2e-10, at some 1e-18).
/// FDistribution keeps all digits. Densities and quantiles are computed with it, exact to a few
/// units of the 64-bit mantissa.
///
/// NaN points give NaN.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The density, at 0 its limit: infinity for df1 = 1, 1 for df1 = 2, 0 above. EMathError:
/// rsValueGZero for f < 0; rsDF when df1 or df2 is 0.
[[nodiscard]] QORVEX_EXPORT Extended FDistPDF(Extended f, std::uint32_t df1, std::uint32_t df2);

/// n + 1 points from f_low to f_high in equal steps, and the density at each, 0 at negative points:
/// one point at f_low for n = 0, none for a negative n. Both vectors are released first. EMathError
/// rsDF when df1 or df2 is 0. O(n).
QORVEX_EXPORT void FDistPDFValues(std::uint32_t df1, std::uint32_t df2, Extended f_low,
                                  Extended f_high, std::int32_t n, TQorFloatVector& f_values,
                                  TQorFloatVector& y_values);

/// @{
/// The probability of at most f, of more than f (1 - less), and of the interval between two points
/// in either order, which is 0 for points that SameFloat finds the same, before any check.
/// EMathError: rsValueGZero for f <= 0, though the probability at 0 would be 0; rsDF when df1 or
/// df2 is 0.
[[nodiscard]] QORVEX_EXPORT Extended FDistLess(Extended f, std::uint32_t df1, std::uint32_t df2);
[[nodiscard]] QORVEX_EXPORT Extended FDistGreater(Extended f, std::uint32_t df1, std::uint32_t df2);
[[nodiscard]] QORVEX_EXPORT Extended FDistBetween(Extended f1, Extended f2, std::uint32_t df1,
                                                  std::uint32_t df2);
/// @}

/// @{
/// The point with the given lower or upper probability; the upper one is that of 1 - p, so that
/// p < 2^-65 raises rsValue01; use UpperQuantile of an FDistribution for smaller ones.
/// EMathError: rsValue01 unless 0 < p < 1; rsDF when df1 or df2 is 0.
[[nodiscard]] QORVEX_EXPORT Extended InvFDistLess(std::uint32_t df1, std::uint32_t df2, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended InvFDistGreater(std::uint32_t df1, std::uint32_t df2,
                                                     Extended p);
/// @}

}  // namespace qorvex::inline QorvexStatistics
