#pragma once

/// @file
/// The correlation of pairs of x and y.
///
/// The sums run over the pairs in ascending order, in extended precision and in a single pass.
/// Digits that the x, or the y, have in common cancel, as in a line (regression.h). Rounding may
/// leave a magnitude a little above 1. NaN gives NaN. Infinite elements, sums or products of sums
/// beyond the extended range and squares that underflow give results without meaning, NaN, 0 or an
/// error, as in a line: scale such data first. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexPairStats {

/// Pearson's coefficient of correlation, the covariance over the product of the standard
/// deviations; 0, without an error, for different lengths and for fewer than two pairs.
///
/// A vector of equal elements has no correlation: EInvalidOp or EZeroDivide. Where its sums are not
/// exact, as those of ten times 0.1, they may leave rounding residue instead of zero: a positive
/// one gives a coefficient that means nothing, a negative one EInvalidOp. Test for elements that
/// differ before the call.
[[nodiscard]] QORVEX_EXPORT Extended CoeffCorrelation(const TQorFloatVector& x,
                                                      const TQorFloatVector& y);

/// The coefficient of determination: the square of CoeffCorrelation, with its errors.
[[nodiscard]] QORVEX_EXPORT Extended CoeffDetermination(const TQorFloatVector& x,
                                                        const TQorFloatVector& y);

}  // namespace qorvex::inline QorvexPairStats
