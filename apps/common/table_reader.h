#pragma once

/// @file
/// Columns of numbers from delimited text.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "apps/common/text_input.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// What to take from a table.
struct TableSelection {
  /// Names or 1-based numbers, in the order of the result; a name wins over a number, and a column
  /// that is chosen again counts once. None takes every column.
  std::vector<std::string> columns = {};
  /// As for RowReader: nothing detects it, a blank is any run of spaces and tabs.
  std::optional<char> delimiter = {};
  /// Whether the first row is a header; nothing guesses it: one with text in any cell is.
  std::optional<bool> header = {};
  /// Skip empty cells instead of refusing them.
  bool skip_empty = false;
  /// With skip_empty, leave out the values of every chosen column in a row where one is empty, so
  /// that values of one index belong to one row.
  bool whole_rows = false;
  /// Take the cells for amounts of money.
  bool currency = false;
};

/// A column of a table.
struct TableColumn {
  /// Its position in the table, from 1.
  std::size_t number = 0;
  /// Empty when the table has no header.
  std::string name = {};
  TQorFloatVector values = {};
  /// What takes the place of values when amounts are read.
  TQorCurrencyVector amounts = {};
  /// The number of empty cells, or of rows, that were left out.
  std::size_t skipped = 0;

  /// "column 2 (speed)", or "column 2" without a name; control characters are written as escapes.
  [[nodiscard]] std::string Title() const;
};

/// What was taken from a table.
struct Table {
  /// The chosen columns.
  std::vector<TableColumn> columns;
  /// The cells of the header; empty without a header.
  std::vector<std::string> header;
};

/// Reads the chosen columns. Other columns may hold any text. Cells are converted by Str2Float, so
/// to 80 bits, or by Str2Currency without rounding; infinities and NaN are no data. A blank line
/// between the rows counts as a row of empty cells, one before the first row or after the last
/// counts for nothing.
///
/// Raises InputError for what RowReader refuses; kNoValues for a text without rows, and for a
/// column without values; kNoSuchColumn; kMalformed for a row that is not as long as the first;
/// kEmptyCell, kNotANumber and kOutOfRange for a cell. Otherwise every column has at least one
/// value. The first line at fault is the one that is reported.
///
/// Memory: 16 bytes a value, at most 40 while a column grows; half of it for amounts.
[[nodiscard]] Table ReadTable(TextInput input, const TableSelection& selection);

}  // namespace qorvex::apps
