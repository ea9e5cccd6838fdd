#pragma once

/// @file
/// What `describe` reports on a column.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "apps/common/table_reader.h"
#include "apps/qorvex/describe_options.h"
#include "qorvex/base/currency.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex::apps {

/// Confidence intervals of a column.
struct ColumnIntervals {
  Interval<Extended> mean;
  Interval<Extended> variance;
  Interval<Extended> std_dev;
};

/// The report on a column.
struct ColumnReport {
  std::size_t number = 0;
  std::string name = {};
  std::size_t skipped = 0;
  /// Of the values.
  int significant_digits = 0;
  /// The lines from the number of values to the inter-quartile range.
  std::vector<ReportFigure> lines = {};
  /// The figures that are amounts, if the values are.
  std::map<ReportTextId, Currency> amounts = {};
  std::optional<Extended> sum_of_weights = std::nullopt;
  /// In the order of the options.
  std::vector<Extended> quantiles = {};
  /// None for a single value.
  std::optional<ColumnIntervals> intervals = std::nullopt;
};

/// The report on a column with its weights, if any. The numbers of the column are released. Throws
/// InputError (kNotANumber) for weights that their kind does not allow, and kOutOfRange for figures
/// that overflow: further figures computed from these would mean nothing. Uses at most that many
/// threads.
[[nodiscard]] ColumnReport ReportOn(TableColumn& column, const TableColumn* weights,
                                    const DescribeOptions& options, unsigned threads);

}  // namespace qorvex::apps
