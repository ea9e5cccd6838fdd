#pragma once

/// @file
/// The rows of a table divided by labels.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "apps/common/table_reader.h"

namespace qorvex::apps {

/// Rows divided by one or more columns of labels.
struct Groups {
  /// The group of each row.
  std::vector<std::uint32_t> of_row;
  /// For each group its label in each of the columns. The groups of the first label come first,
  /// each divided by the second label, and so on; labels are in the order in which they appear.
  std::vector<std::vector<std::string>> labels;
};

/// The groups of rows with the same labels. There is at least one column of labels, and all have as
/// many rows. Cost: O(rows) for each column.
[[nodiscard]] Groups GroupsOf(std::span<const TableColumn> label_columns);

/// The numbers of a group.
struct GroupNumbers {
  ColumnNumbers numbers;
  /// The number of its rows without a number.
  std::size_t missing = 0;
};

/// The numbers of a column in each of the groups, in their order. Memory: that of the column again.
[[nodiscard]] std::vector<GroupNumbers> Split(const TableColumn& column, const Groups& groups);

}  // namespace qorvex::apps
