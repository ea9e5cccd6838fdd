#pragma once

/// @file
/// Columns of numbers from delimited text.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "apps/common/column_numbers.h"
#include "apps/common/labels.h"
#include "apps/common/row_reader.h"
#include "apps/common/table_format.h"
#include "apps/common/text_input.h"

namespace qorvex::apps {

/// What to read from a table.
struct TableSelection {
  /// Names or 1-based numbers, in the order of the result. A name takes precedence over a number;
  /// duplicates are ignored. Empty for all columns with numbers.
  std::vector<std::string> columns = {};
  /// The name or number of the column of weights, which follows the others in the result.
  std::optional<std::string> weights = {};
  /// The same for columns of labels, which are any text. They follow the weights.
  std::vector<std::string> labels = {};
  /// What is not set is found by RowReader.
  TableFormat format = {};
  /// Skip the whole row if any value in it is missing in a column of the result, so that values
  /// with the same index belong to the same row.
  bool whole_rows = false;
  /// Read the cells, except weights and labels, as amounts of money.
  bool currency = false;
};

/// What a column of a table contains.
enum class ColumnRole { kValues, kWeights, kLabels };

/// A column of a table.
struct TableColumn {
  /// Its position in the table, from 1.
  std::size_t number = 0;
  /// Empty if the table has no header.
  std::string name = {};
  ColumnRole role = ColumnRole::kValues;
  /// For amounts of money integers with four decimals.
  ColumnNumbers numbers = {};
  /// Labels take the place of the numbers.
  Labels labels = {};
  /// If there are labels, and rows are not skipped as a whole: the rows without a number in this
  /// column, by the index of their labels.
  std::vector<std::size_t> gaps = {};
  /// The number of missing values, or of rows that were skipped for them.
  std::size_t missing = 0;

  /// As ColumnTitle.
  [[nodiscard]] std::string Title() const;
};

/// A column without numbers.
struct LeftOutColumn {
  /// As ColumnTitle.
  std::string title;
  /// Its first text; empty if all its values are missing.
  std::string first_text;
};

/// What was read from a table.
struct Table {
  /// The chosen columns.
  std::vector<TableColumn> columns;
  /// The cells of the header; empty without a header.
  std::vector<std::string> header = {};
  /// If no column was chosen, those without a number, without the names of rows.
  std::vector<LeftOutColumn> left_out = {};
  /// If columns were chosen, and rows were skipped as a whole: which of all rows, from 0. A blank
  /// line between rows is a row.
  std::vector<std::size_t> skipped_rows = {};
  /// The format that was found.
  TableFormat format = {};
  /// As for RowReader.
  bool has_doubtful_row_names = false;
};

/// Reads the chosen columns. The others may contain any text.
///
/// - A column of decimal numbers that fit is kept without rounding; others are converted to 80 bits
///   by Str2Float. Amounts are read without rounding by Str2Currency. Infinities are refused, and
///   so is NaN unless it stands for a missing value.
/// - Missing values are skipped and counted. A blank line between rows is a row of empty cells.
///   Blank lines before the first row and after the last are ignored.
/// - If no column is chosen, columns without a number are left out. If a column has both numbers
///   and text, its first text is at fault.
/// - Every column of the result has at least one value. Labels are never missing: rows without one
///   are skipped.
/// - Throws InputError for the first faulty line: for what RowReader refuses; kNoValues for a text
///   without rows, for a chosen column without values, if no column has a number, and if every row
///   would be skipped; kNoSuchColumn; kMalformed for a row whose length differs from that of the
///   first; kEmptyCell if no value may be missing; kNotANumber and kOutOfRange for a cell.
/// - Memory: 8 bytes per number without rounding and 16 otherwise, at most 2.5 times that while a
///   column grows or while the parts that several threads have read are joined.
/// - Several threads share the work, up to the first block with a quote or the first row that is
///   longer than a block, if at most 256 columns are chosen. Each reads blocks of that many bytes.
///   Neither their number nor the size changes the result.
[[nodiscard]] Table ReadTable(TextInput input, const TableSelection& selection,
                              unsigned threads = 1, std::size_t block_size = RowReader::kBlockSize);

}  // namespace qorvex::apps
