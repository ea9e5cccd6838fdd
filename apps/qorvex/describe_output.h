#pragma once

/// @file
/// The two forms of the output of `describe`.

#include <optional>
#include <string>
#include <vector>

#include "apps/qorvex/describe_report.h"
#include "apps/qorvex/json_writer.h"

namespace qorvex::apps {

/// A report as text: a line with the name of the column, then a line for each figure.
[[nodiscard]] std::string TextOf(const ColumnReport& report, const DescribeOptions& options);

/// Writes remarks if figures of the report are below the range of the format, or too small for the
/// decimals of its text.
void RemarkOnZeros(const ColumnReport& report, const DescribeOptions& options);

/// The keys of a JSON document before those of the columns.
void WriteHeading(JsonWriter& json, const DescribeOptions& options, const TableColumn* weights);

/// A report as an object of this document.
void WriteReport(JsonWriter& json, const ColumnReport& report, const DescribeOptions& options);

}  // namespace qorvex::apps
