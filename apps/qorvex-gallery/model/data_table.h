#pragma once

/// @file
/// DataTable, the table that the page of data shows a column of.

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

/// The cells of a table as they were read, and what has been changed since. A column of numbers can
/// be changed cell by cell. What is not changed is written again letter by letter.
///
/// Memory: the text, 8 bytes a cell, and some 100 for each change.
class DataTable {
 public:
  /// No rows, no columns.
  DataTable() = default;

  /// Reads delimited text. The first row is a header when one of its cells is neither empty nor a
  /// number; a blank line between the rows is a row of empty cells. Raises InputError, which names
  /// line and text, as RowReader does, for a text without rows and for rows of different lengths.
  explicit DataTable(apps::TextInput input);

  /// Whether the first row was taken for a header although it holds a number; it may be one of
  /// data.
  [[nodiscard]] bool HasDoubtfulHeader() const;
  [[nodiscard]] std::size_t Rows() const noexcept { return lines_.size(); }
  [[nodiscard]] std::size_t Columns() const noexcept { return names_.size(); }
  /// The name of a column in the header, or else its number.
  [[nodiscard]] QString Title(std::size_t column) const;
  /// The column with that name, or else the first that begins with a number, or else the first.
  [[nodiscard]] std::size_t Find(const QString& name) const;
  /// The text that names a row: that of the first column where this begins with text, or else its
  /// number.
  [[nodiscard]] QString RowName(std::size_t row) const;

  /// The numbers of a column, a NaN for each empty cell. Raises InputError, which names line and
  /// text, for a cell that is not a number and for a column that was read without any number.
  [[nodiscard]] TQorFloatVector Numbers(std::size_t column) const;
  /// Changes a cell; NaN empties it. The number that was read brings its own text back.
  void SetNumber(std::size_t row, std::size_t column, Extended number);

  /// Whether a cell is not as it was read or last saved.
  [[nodiscard]] bool IsChanged() const { return changes_ != saved_; }
  /// All changes have been saved.
  void SetSaved() { saved_ = changes_; }

  /// Gives the table piece by piece as text: rows end with LF, cells are separated by commas and
  /// quoted where they must be (RFC 4180).
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
  // Of each column; empty texts without a header.
  std::vector<std::string> names_;
  // The cells one after the other, row by row, and where each ends.
  std::string text_;
  std::vector<std::size_t> ends_;
  // The line on which each row starts.
  std::vector<std::size_t> lines_;
  // By column.
  std::vector<Changes> changes_;
  std::vector<Changes> saved_;
};

}  // namespace qorvex::gallery
