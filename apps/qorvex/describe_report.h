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
#include "apps/qorvex/figures.h"
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

/// A column of labels, and the label of a group.
struct GroupLabel {
  std::string column;
  std::string label;

  /// "station = Kew".
  [[nodiscard]] std::string Text() const;
};

/// A column, or the part of it in a group of rows.
struct DescribedSample {
  TableColumn column;
  /// Without numbers if the rows have no weights.
  TableColumn weights;
  /// One for each column of labels.
  std::vector<GroupLabel> groups;
};

/// The report on a column or a group.
struct ColumnReport {
  std::size_t number = 0;
  std::string name = {};
  std::vector<GroupLabel> groups = {};
  std::size_t missing = 0;
  /// Of the values.
  int significant_digits = 0;
  /// The lines from the number of values to the inter-quartile range. Those that --figures does not
  /// choose may not have been computed.
  std::vector<ReportFigure> lines = {};
  /// The figures that are amounts, if the values are.
  std::map<ReportTextId, Currency> amounts = {};
  std::optional<Extended> sum_of_weights = std::nullopt;
  /// In the order of the options.
  std::vector<Extended> quantiles = {};
  /// None for a single value.
  std::optional<ColumnIntervals> intervals = std::nullopt;
  /// The chosen figures that are not among the lines.
  std::vector<Figure> further = {};
};

/// The report on a column or a group, which in a group may be without values. The numbers of the
/// column are released. Throws InputError (kNotANumber) for weights that their kind does not allow,
/// and kOutOfRange for figures that overflow: further figures computed from these would mean
/// nothing. Uses at most that many threads.
[[nodiscard]] ColumnReport ReportOn(DescribedSample& sample, const DescribeOptions& options,
                                    unsigned threads);

}  // namespace qorvex::apps
