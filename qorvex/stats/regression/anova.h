#pragma once

/// @file
/// Analysis of variance: its tables, and the one-way analysis of several groups.

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <ranges>
#include <string>
#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/regression/columns.h"

namespace qorvex {

/// A source of variation.
struct AnovaRow {
  /// The degrees of freedom.
  std::size_t degrees_of_freedom;
  /// The sum of squares.
  Extended sum_of_squares;
  /// The sum of squares over the degrees of freedom; NaN for none.
  Extended mean_square;
};

/// A source of variation and its F test against the residuals.
struct AnovaTest : AnovaRow {
  /// The mean square over that of the residuals; infinite if these are all 0, NaN for 0 / 0 and
  /// without degrees of freedom.
  Extended f;
  /// The probability of an F at least as large.
  Extended p;
  /// ln(p), also where p underflows.
  Extended log_p;
};

/// The analysis of variance of a regression.
struct RegressionAnova {
  /// Of all predictors together.
  AnovaTest regression;
  /// Of what they leave.
  AnovaRow residual;
  /// Of the response, about its mean, or about 0 in a fit without an intercept.
  AnovaRow total;
  /// What each predictor, or power of x, adds to those before it.
  std::vector<AnovaTest> terms;
};

/// The one-way analysis of variance.
struct OneWayAnovaTable {
  /// Of the means of the groups.
  AnovaTest between;
  /// Of the values about the means of their groups.
  AnovaRow within;
  /// Of the values about their common mean.
  AnovaRow total;
  /// The part of the total sum of squares that is between the groups; NaN if that is 0.
  Extended determination;
  /// The root of the mean square within the groups.
  Extended residual_std_dev;
};

/// One-way analysis of variance: whether groups have the same mean.
///
/// - SSB = sum S_g^2 / n_g - S^2 / n and SSW = sum (Q_g - S_g^2 / n_g), where S_g and Q_g are the
///   sums of the n_g values and their squares. All figures but p are computed exactly and rounded
///   once.
/// - Decimal data give the results of the decimal numbers.
/// - All groups of one value: SSW has no degrees of freedom, F and p are NaN.
/// - Errors, in this order: EMathError rsValue2 for fewer than two groups, rsVectorIsEmpty for an
///   empty one; EInvalidOp for a value that is not finite.
/// - Cost: some 4 ns a value.
[[nodiscard]] QORVEX_EXPORT OneWayAnovaTable OneWayAnova(const Columns& groups);
/// The same for groups as exact samples. Cost: O(1) for each.
[[nodiscard]] QORVEX_EXPORT OneWayAnovaTable OneWayAnova(VectorView<ExactSample<2>> groups);

/// @{
/// The same for values with the label of their group beside each: text or any integers. EMathError
/// rsSameDimensions for different lengths, before the errors above. Cost: O(log g) a value for g
/// labels.
[[nodiscard]] QORVEX_EXPORT OneWayAnovaTable OneWayAnovaByLabel(VectorView<std::string> labels,
                                                                const ColumnView& values);
[[nodiscard]] QORVEX_EXPORT OneWayAnovaTable OneWayAnovaByLabel(VectorView<std::int64_t> labels,
                                                                const ColumnView& values);
template <ContiguousRange Labels>
requires std::integral<ElementOf<Labels>> &&(sizeof(ElementOf<Labels>) <= sizeof(std::int64_t))
    [[nodiscard]] OneWayAnovaTable
    OneWayAnovaByLabel(const Labels& labels, const ColumnView& values) {
  // Unsigned labels beyond the range become negative ones, still different from all others.
  const std::vector<std::int64_t> signed_labels(std::ranges::begin(labels),
                                                std::ranges::end(labels));
  return OneWayAnovaByLabel(VectorView<std::int64_t>(signed_labels), values);
}
/// @}

}  // namespace qorvex
