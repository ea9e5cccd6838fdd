#pragma once

/// @file
/// The correlation of pairs of x and y.
///
/// The sums run over the pairs in ascending order, in extended precision and in a single pass.
///
/// - Rounding can leave a magnitude slightly above 1.
/// - Digits that all x, or all y, have in common cancel, as in a line (see regression.h).
/// - NaN gives NaN.
/// - Infinite elements, sums or products of sums beyond the extended range, and squares that
///   underflow give meaningless results: NaN, 0 or an error. Scale such data first.
/// - Cost: O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexPairStats {

/// Pearson's correlation coefficient: the covariance divided by the product of the standard
/// deviations.
///
/// - Different lengths, or fewer than two pairs: 0, without an error.
/// - A vector of equal elements has no correlation: EInvalidOp or EZeroDivide. If the sums of such
///   elements are inexact, like those of ten times 0.1, rounding errors can remain instead of zero.
///   A positive remainder gives a meaningless coefficient, a negative one EInvalidOp. Check that
///   the elements differ first.
[[nodiscard]] QORVEX_EXPORT Extended CoeffCorrelation(VectorView<Extended> x,
                                                      VectorView<Extended> y);

/// The coefficient of determination: the square of CoeffCorrelation, with the same errors.
[[nodiscard]] QORVEX_EXPORT Extended CoeffDetermination(VectorView<Extended> x,
                                                        VectorView<Extended> y);

}  // namespace qorvex::inline QorvexPairStats
