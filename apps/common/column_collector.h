#pragma once

/// @file
/// Collects the columns of a table from its rows.

#include <cstddef>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/row_reader.h"
#include "apps/common/table_reader.h"

namespace qorvex::apps {

/// Collects the values of the chosen columns. The rules are those of ReadTable.
class ColumnCollector {
 public:
  /// Rows of the same table that another collector has added, until a fault in them, if any.
  struct Part;

  /// Takes the header from the first row of a table. Otherwise that row is to be added. The
  /// selection must outlive the collector.
  ColumnCollector(const RowReader& rows, const TableSelection& selection);

  [[nodiscard]] bool HasHeader() const noexcept { return !header_.empty(); }
  [[nodiscard]] std::size_t CountColumns() const noexcept { return columns_.size(); }
  /// Without rows, for further ones of the same table.
  [[nodiscard]] ColumnCollector ForMoreRows() const;

  /// Adds the blank lines before the row, then the row.
  void AddRow(const RowReader& rows);
  /// Adds the row only.
  void AddCells(const RowReader& rows);
  /// Adds all further rows. Blank lines at the end belong to the row that may follow.
  void AddAllRows(RowReader& rows);
  /// Adds the rows of the parts, with the same result, or the same exception, as if they had been
  /// added here one by one. Several threads share the columns.
  void AddParts(std::span<Part> parts, const std::string& input, unsigned threads);

  /// Throws InputError for a column without values.
  [[nodiscard]] Table Finish(const std::string& input);

 private:
  void Add(std::string_view cell, TableColumn& column, const RowReader& rows) const;
  void AddBlankLines(const std::string& input, std::size_t end, std::size_t count);
  void SkipRow(const std::string& input, std::size_t line);
  void Skip(TableColumn& column, const std::string& input, std::size_t line) const;

  const TableSelection* selection_;
  std::size_t first_line_;
  std::size_t width_;
  std::vector<std::string> header_;
  std::vector<TableColumn> columns_;
  bool has_rows_ = false;
  // After the last row.
  std::size_t blank_lines_ = 0;
};

struct ColumnCollector::Part {
  ColumnCollector rows;
  /// The number of its first line.
  std::size_t first_line = 0;
  std::exception_ptr fault = nullptr;
};

}  // namespace qorvex::apps
