#pragma once

/// @file
/// Collects the columns of a table from its rows.

#include <cstddef>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/cells.h"
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
  ColumnCollector(RowReader& rows, const TableSelection& selection);

  [[nodiscard]] bool HasHeader() const noexcept { return !header_.empty(); }
  [[nodiscard]] std::size_t CountColumns() const noexcept { return columns_.size(); }
  /// Without rows, for further ones of the same table.
  [[nodiscard]] ColumnCollector ForMoreRows() const;

  /// Adds the blank lines before the row, then the row.
  void AddRow(const RowScanner& rows);
  /// Adds the row only.
  void AddCells(const RowScanner& rows);
  /// Adds all further rows. Blank lines at the end belong to the row that may follow.
  void AddAllRows(RowScanner& rows);
  /// Adds the rows of the parts, with the same result, or the same exception, as if they had been
  /// added here one by one. Several threads share the columns.
  void AddParts(std::span<Part> parts, const std::string& input, unsigned threads);

  /// Throws InputError (kNoValues) for a chosen column without values and if no column has a
  /// number.
  [[nodiscard]] Table Finish(const std::string& input);

 private:
  using Cells = std::span<const std::string_view>;
  // What has been seen of a column that was not chosen. It is left out if it has no number.
  struct FirstCells {
    // The fault of its first text.
    std::exception_ptr text = nullptr;
    std::string text_cell = {};
    // The lines of its first text and of its first number; 0 for none.
    std::size_t text_line = 0;
    std::size_t number_line = 0;
  };

  [[nodiscard]] bool HasLabels() const { return columns_.back().role == ColumnRole::kLabels; }
  [[nodiscard]] bool LacksAValue(Cells cells) const;
  [[nodiscard]] bool NeedsValueIn(const TableColumn& column) const;
  void AddCell(std::string_view cell, std::size_t index, const RowScanner& rows);
  void AddNumber(std::string_view cell, TableColumn& column, const CellPlace& place);
  void AddFirstCells(std::span<const FirstCells> following);
  void AddBlankLines(const std::string& input, std::size_t end, std::size_t count);
  void SkipRow();
  [[noreturn]] void RefuseAll(const std::string& input,
                              const std::vector<LeftOutColumn>& columns) const;

  const MissingWords* missing_;
  char decimal_sign_;
  bool has_amounts_;
  bool needs_whole_rows_;
  // Whether a cell that is a number is nothing else.
  bool takes_numbers_directly_ = false;
  bool may_skip_rows_ = false;
  bool keeps_gaps_ = false;
  std::size_t first_line_;
  std::size_t width_;
  std::vector<std::string> header_;
  std::vector<TableColumn> columns_;
  // By column; empty if columns were chosen.
  std::vector<FirstCells> first_cells_;
  // Those that were not skipped.
  std::size_t rows_ = 0;
  // As in Table.
  std::vector<std::size_t> skipped_rows_;
  bool has_rows_ = false;
  // After the last row.
  std::size_t blank_lines_ = 0;
  // The text of a number whose decimal sign was changed.
  std::string buffer_;
};

struct ColumnCollector::Part {
  ColumnCollector rows;
  /// The number of its first line.
  std::size_t first_line = 0;
  std::exception_ptr fault = nullptr;
};

}  // namespace qorvex::apps
