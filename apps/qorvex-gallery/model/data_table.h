#pragma once

/// @file
/// DataTable, the table on the page of data.

#include <QString>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/text_input.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// Whether two numbers are the same, sign of zero included; NaN is the same as NaN.
[[nodiscard]] bool SameNumber(Extended a, Extended b);

/// The cells of a table as they were read, and the changes since. Numbers can be changed cell by
/// cell; the text of unchanged cells is saved exactly as it was read.
///
/// Memory: the text, 8 bytes per cell, and about 100 per change.
class DataTable {
 public:
  /// No rows, no columns.
  DataTable() = default;

  /// Reads delimited text. The first row is a header if any of its cells is text; a blank line
  /// between rows is a row of empty cells. Throws InputError for what RowReader refuses, for a text
  /// without rows and for rows of different lengths.
  explicit DataTable(apps::TextInput input);

  /// Whether the first row was taken for a header although it contains a number, so that it may be
  /// data.
  [[nodiscard]] bool HasDoubtfulHeader() const;
  [[nodiscard]] std::size_t Rows() const noexcept { return lines_.size(); }
  [[nodiscard]] std::size_t Columns() const noexcept { return names_.size(); }
  /// The name of a column, or its number if it has none.
  [[nodiscard]] QString Title(std::size_t column) const;
  /// The column with this name; otherwise the first column that starts with a number, or column 0.
  [[nodiscard]] std::size_t Find(const QString& name) const;
  /// The name of a row: its cell in the first column if that column starts with text, otherwise its
  /// number.
  [[nodiscard]] QString RowName(std::size_t row) const;

  /// The numbers of a column, with NaN for empty cells. Throws InputError, with line and text, for
  /// a cell that is not a number, and for a column that had no number when it was read.
  [[nodiscard]] TQorFloatVector Numbers(std::size_t column) const;
  /// Changes a cell; NaN makes it empty. The number that was read restores the original text.
  void SetNumber(std::size_t row, std::size_t column, Extended number);

  /// Whether any cell differs from what was read or last saved.
  [[nodiscard]] bool IsChanged() const { return changes_ != saved_; }
  /// Marks all changes as saved.
  void SetSaved() { saved_ = changes_; }

  /// Writes the table piece by piece as text: rows end with LF, cells are separated by commas and
  /// quoted where necessary (RFC 4180).
  void WriteCsv(const std::function<void(std::string_view text)>& write) const;

 private:
  // The row and the new text of each cell that was changed.
  using Changes = std::map<std::size_t, std::string>;

  void AppendRow(const std::vector<std::string_view>& cells, std::size_t line);
  [[nodiscard]] std::string_view CellRead(std::size_t row, std::size_t column) const;
  [[nodiscard]] std::string_view Cell(std::size_t row, std::size_t column) const;
  [[nodiscard]] Extended NumberIn(std::string_view cell, std::size_t row, std::size_t column) const;

  std::string input_name_;
  bool has_header_ = false;
  bool first_column_names_rows_ = false;
  // The names of the columns; empty texts without a header.
  std::vector<std::string> names_;
  // The texts of all cells, row by row, and where each ends.
  std::string text_;
  std::vector<std::size_t> ends_;
  // The line on which each row starts.
  std::vector<std::size_t> lines_;
  // By column.
  std::vector<Changes> changes_;
  std::vector<Changes> saved_;
};

}  // namespace qorvex::gallery
