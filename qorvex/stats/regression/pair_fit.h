#pragma once

/// @file
/// Polynomials through pairs of numbers, with the usual figures of both columns.

#include <cstddef>

#include "qorvex/base/export.h"
#include "qorvex/stats/regression/columns.h"
#include "qorvex/stats/regression/linear_fit.h"

namespace qorvex {

/// A fitted curve and the figures of its pairs, each correctly rounded.
struct PairFit {
  /// @{
  /// The means.
  Extended mean_x;
  Extended mean_y;
  /// @}
  /// @{
  /// The sample standard deviations.
  Extended std_dev_x;
  Extended std_dev_y;
  /// @}
  /// The sample covariance.
  Extended covariance;
  /// Pearson's correlation; NaN if all y are equal.
  Extended correlation;
  /// The curve.
  LinearFit curve;
};

/// The least-squares polynomial of the given degree through pairs: a line for 1, a parabola for 2.
///
/// - No digits are lost to an offset that the x have in common, nor to large or small units.
/// - Errors, in this order: EMathError rsValueGZero for degree 0; those of LinearModel::Add and
///   LinearModel::Fit. CollinearityError means too few different x.
/// - O(n).
[[nodiscard]] QORVEX_EXPORT PairFit FitPairs(const ColumnView& x, const ColumnView& y,
                                             std::size_t degree = 1);

}  // namespace qorvex
