#pragma once

/// @file
/// Finds how a table is written from its first rows.

#include <cstddef>
#include <optional>
#include <string_view>

#include "apps/common/row_scanner.h"
#include "apps/common/table_format.h"

namespace qorvex::apps {

/// A first line like "sep=;", by which spreadsheets tell the delimiter.
struct DelimiterLine {
  char delimiter;
  /// With the end of the line.
  std::size_t length;
};

/// The line at the start of the text; empty if the text has no such line.
[[nodiscard]] std::optional<DelimiterLine> FindDelimiterLine(std::string_view text);

/// What the first rows of a text say.
struct FoundFormat {
  RowSyntax syntax = {};
  char decimal_sign = '.';
  /// Whether the first row is a header with one cell less than all rows below it. Rows that end
  /// with a delimiter are as long as the first.
  bool first_row_is_short = false;
  /// Whether the cells below it that would name the rows are not quoted, as R quotes them.
  bool has_doubtful_names = false;
};

/// The format by the rules of RowReader. What is wanted is not looked for. The sample is the start
/// of a text in UTF-8, or the whole text; faults in it are left to the reader. Cost: a thousand
/// rows are read, usually once.
[[nodiscard]] FoundFormat FindFormat(std::string_view sample, bool is_whole,
                                     const TableFormat& wanted);

}  // namespace qorvex::apps
