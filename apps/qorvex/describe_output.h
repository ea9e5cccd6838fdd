#pragma once

/// @file
/// The forms of the output of `describe`.

#include <span>
#include <string>
#include <vector>

#include "apps/qorvex/describe_report.h"
#include "apps/qorvex/figures.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/result_table.h"

namespace qorvex::apps {

/// The figures of a report in their order, the same for all reports.
[[nodiscard]] std::vector<Figure> FiguresOf(const ColumnReport& report,
                                            const DescribeOptions& options);

/// A report as text: a line with the name of the column and the labels of the group, then a line
/// for each figure.
[[nodiscard]] std::string TextOf(const ColumnReport& report, const DescribeOptions& options);

/// Writes remarks if figures of the report are below the range of the format, or too small for the
/// decimals.
void RemarkOnZeros(const ColumnReport& report, const DescribeOptions& options);

/// The keys of a JSON document before those of the columns.
void WriteHeading(JsonWriter& json, const DescribeOptions& options, const TableColumn& weights,
                  std::span<const TableColumn> labels);

/// A report as an object of this document.
void WriteReport(JsonWriter& json, const ColumnReport& report, const DescribeOptions& options);

/// CSV with a line for each report, or a table with a column for each.
[[nodiscard]] std::string TableOf(const std::vector<ColumnReport>& reports,
                                  const DescribeOptions& options);

}  // namespace qorvex::apps
