#pragma once

/// @file
/// Least-squares lines and parabolas through pairs of x and y, and what they leave.
///
/// The sums run over the pairs in ascending order, in extended precision.
/// Digits that the x have in common cancel: x from 2000 to 2025 leave about 13 of the 19 digits of
/// a slope, x from 1000000 to 1000010 about 7. Subtracting a round number in their middle from the
/// x first keeps them.
///
/// NaN gives NaN. Infinite elements, and sums or products of sums beyond the extended range, give
/// results without meaning: NaN, an infinity, 0 or an error. So do squares that underflow: the x
/// 1e-3000 and 2e-3000 count as the same. Scale such data first.
///
/// EMathError: rsSameDimensions for different lengths, first of all; the outputs are untouched when
/// an error is raised. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexPairStats {

/// The least-squares line y = a + b x: b = (Sxy - Sx Sy/n) / (Sxx - Sx Sx/n) and a = (Sy - b Sx) /
/// n. Then EInvalidOp for no pair, and EZeroDivide or EInvalidOp where the x are all the same. Such
/// x whose sums are not exact, as ten times 0.1, may leave rounding residue instead of zero: no
/// error is raised then, and the line means nothing. Test for x that differ before the call.
QORVEX_EXPORT void GetRegressionLine(const TQorFloatVector& x, const TQorFloatVector& y,
                                     Extended& a, Extended& b);

/// The least-squares parabola y = a0 + a1 x + a2 x^2, from the normal equations by Cramer's rule.
/// Then rsDivideByZero when their determinant is zero within QorTolerance: for fewer than three
/// different x, and for no pair.
///
/// The determinant has the size of the sixth power of the spread of the x: x near 1e-4 make it
/// smaller than the tolerance. Scale them, x' = s x; with the coefficients a' of the fit to x',
/// those to x are a0', s a1' and s^2 a2'.
///
/// Digits in common cost more here than in a line, and without notice, since large x leave a
/// determinant above the tolerance even where only rounding makes it: the coefficients of x from
/// 2000 to 2025 keep about four digits, those of 5000, 5001, 5002 and 5003 none, and fewer than
/// three different x may pass. Subtract a number c in the middle of the x; with the coefficients a'
/// of the fit to x - c, those to x are a0' - c (a1' - c a2'), a1' - 2 c a2' and a2'.
QORVEX_EXPORT void GetQuadraticCurve(const TQorFloatVector& x, const TQorFloatVector& y,
                                     Extended& a0, Extended& a1, Extended& a2);

/// The sum of the squares of (b x + a) - y; 0 for no pair.
[[nodiscard]] QORVEX_EXPORT Extended GetSSE(const TQorFloatVector& x, const TQorFloatVector& y,
                                            Extended a, Extended b);

}  // namespace qorvex::inline QorvexPairStats
