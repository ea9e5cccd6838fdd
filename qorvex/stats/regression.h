#pragma once

/// @file
/// Least-squares lines and parabolas through pairs of x and y, and their squared errors.
///
/// The sums run over the pairs in ascending order, in extended precision.
///
/// - EMathError rsSameDimensions for different lengths, before all other errors. The outputs keep
///   their values after an error.
/// - Digits that all x have in common cancel: x from 2000 to 2025 leave about 13 of the 19 digits
///   of a slope, x from 1000000 to 1000010 about 7. Subtract a round number near the middle of the
///   x first to keep them.
/// - NaN gives NaN.
/// - Infinite elements, and sums or products of sums beyond the extended range, give meaningless
///   results: NaN, an infinity, 0 or an error. So do squares that underflow: the x 1e-3000 and
///   2e-3000 count as equal. Scale such data first.
/// - Cost: O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexPairStats {

/// The least-squares line y = a + b x: b = (Sxy - Sx Sy/n) / (Sxx - Sx Sx/n) and a = (Sy - b Sx) /
/// n, where Sx is the sum of the x, Sxy the sum of the products, and so on.
///
/// - No pairs: EInvalidOp.
/// - All x equal: EZeroDivide or EInvalidOp. If the sums of such x are inexact, like those of ten
///   times 0.1, rounding errors can remain instead of zero. Then no error is raised, and the line
///   is meaningless. Check that the x differ first.
QORVEX_EXPORT void GetRegressionLine(VectorView<Extended> x, VectorView<Extended> y, Extended& a,
                                     Extended& b);

/// The least-squares parabola y = a0 + a1 x + a2 x^2, from the normal equations by Cramer's rule.
///
/// - EMathError rsDivideByZero if the determinant is zero within QorTolerance, as for fewer than
///   three different x.
/// - Small spread: the determinant is of the order of the sixth power of the spread of the x, so x
///   near 1e-4 make it smaller than the tolerance. Fit to x' = s x instead. With its coefficients
///   a', those for x are a0', s a1' and s^2 a2'.
/// - Digits in common cost more than in a line, and no error shows it, because large x make the
///   determinant exceed the tolerance even if it consists of rounding errors only. The coefficients
///   for x from 2000 to 2025 keep about four digits, those for 5000, 5001, 5002 and 5003 none, and
///   fewer than three different x may go unnoticed. Fit to x - c instead, with a number c near the
///   middle of the x. With its coefficients a', those for x are a0' - c (a1' - c a2'), a1' - 2 c
///   a2' and a2'.
QORVEX_EXPORT void GetQuadraticCurve(VectorView<Extended> x, VectorView<Extended> y, Extended& a0,
                                     Extended& a1, Extended& a2);

/// The sum of ((b x + a) - y)^2; 0 for no pairs.
[[nodiscard]] QORVEX_EXPORT Extended GetSSE(VectorView<Extended> x, VectorView<Extended> y,
                                            Extended a, Extended b);

}  // namespace qorvex::inline QorvexPairStats
