#include "apps/qorvex/table_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>
#include <span>
#include <string_view>
#include <utility>

#include "apps/qorvex/input_error.h"
#include "apps/qorvex/row_reader.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::cli {

namespace {

using Cells = std::span<const std::string_view>;

// Text in the form of a number, whatever its size; this includes "nan" and "inf".
bool IsHeader(Cells cells) {
  return std::ranges::any_of(
      cells, [](std::string_view cell) { return !cell.empty() && !IsNumber(cell); });
}

std::string ColumnTitle(std::size_t number, std::string_view name) {
  std::string title = "column " + Int2EStr(number);
  if (!name.empty()) title += " (" + OnOneLine(name) + ')';
  return title;
}

std::string Cardinal(std::size_t count, const char* noun) {
  return Int2EStr(count) + ' ' + noun + (count == 1 ? "" : "s");
}

// "the columns are 1 (x), 2 (y)" or "the table has 3 columns and no header".
std::string DescribeColumns(std::span<const std::string> names, std::size_t width) {
  if (names.empty()) return "the table has " + Cardinal(width, "column") + " and no header";
  constexpr std::size_t most_shown = 20;
  std::string text = "the columns are ";
  for (std::size_t i = 0; i < std::min(width, most_shown); ++i) {
    if (i != 0) text += ", ";
    text += Int2EStr(i + 1) + " (" + OnOneLine(names[i]) + ')';
  }
  if (width > most_shown) text += " and " + Int2EStr(width - most_shown) + " more";
  return text;
}

// The position, from 0, of a column that is chosen by name or number.
std::size_t FindColumn(const std::string& chosen, std::span<const std::string> names,
                       std::size_t width, const std::string& input_name) {
  if (const auto found = std::ranges::find(names, chosen); found != names.end()) {
    if (const auto again = std::find(found + 1, names.end(), chosen); again != names.end()) {
      throw InputError(InputFault::kNoSuchColumn, input_name,
                       "columns " + Int2EStr(found - names.begin() + 1) + " and " +
                           Int2EStr(again - names.begin() + 1) + " are both named " +
                           Excerpt(chosen));
    }
    return static_cast<std::size_t>(found - names.begin());
  }
  std::size_t number = 0;
  const char* const end = chosen.data() + chosen.size();
  const auto [stop, error] = std::from_chars(chosen.data(), end, number);
  if (error != std::errc() || stop != end || number < 1 || number > width) {
    throw InputError(
        InputFault::kNoSuchColumn, input_name,
        "there is no column " + Excerpt(chosen) + "; " + DescribeColumns(names, width));
  }
  return number - 1;
}

// The positions, from 0, of the chosen columns, each once; of all columns when none is chosen.
std::vector<std::size_t> ChosenColumns(std::span<const std::string> chosen,
                                       std::span<const std::string> names, std::size_t width,
                                       const std::string& input_name) {
  std::vector<std::size_t> indices;
  if (chosen.empty()) {
    indices.resize(width);
    std::iota(indices.begin(), indices.end(), std::size_t{0});
  }
  for (const std::string& column : chosen) {
    const std::size_t index = FindColumn(column, names, width, input_name);
    if (std::ranges::find(indices, index) == indices.end()) indices.push_back(index);
  }
  return indices;
}

// Collects the values of the chosen columns from the rows.
class ColumnCollector {
 public:
  ColumnCollector(RowReader& rows, const TableSelection& selection)
      : rows_(rows),
        skip_empty_(selection.skip_empty),
        first_line_(rows.Line()),
        width_(rows.Cells().size()) {
    std::vector<std::string> names;
    has_header_ = IsHeader(rows.Cells());
    if (has_header_) names.assign(rows.Cells().begin(), rows.Cells().end());

    for (const std::size_t index : ChosenColumns(selection.columns, names, width_, rows.Name())) {
      columns_.push_back({.number = index + 1, .name = has_header_ ? names[index] : ""});
    }
  }

  [[nodiscard]] bool HasHeader() const { return has_header_; }

  // The blank lines before the row, then the row.
  void AddRow() {
    const std::size_t first_blank = rows_.Line() - rows_.BlankLines();
    for (std::size_t line = first_blank; line < rows_.Line(); ++line) {
      for (TableColumn& column : columns_) Skip(column, line);
    }
    AddCells();
  }

  void AddCells() {
    const Cells cells = rows_.Cells();
    if (cells.size() != width_) {
      throw InputError(InputFault::kMalformed, rows_.Name(), rows_.Line(),
                       "the row has " + Cardinal(cells.size(), "cell") + " where line " +
                           Int2EStr(first_line_) + " has " + Int2EStr(width_));
    }
    for (TableColumn& column : columns_) {
      const std::string_view cell = cells[column.number - 1];
      if (cell.empty()) {
        Skip(column, rows_.Line());
      } else {
        column.values.Append(Value(cell, column));
      }
    }
  }

  [[nodiscard]] std::vector<TableColumn> Finish() {
    for (TableColumn& column : columns_) {
      if (column.values.empty()) {
        throw InputError(InputFault::kNoValues, rows_.Name(), column.Title() + " has no values");
      }
      column.values.ShrinkToFit();
    }
    return std::move(columns_);
  }

 private:
  [[noreturn]] void FailIn(const TableColumn& column, std::size_t line, InputFault fault,
                           const std::string& what) const {
    throw InputError(fault, rows_.Name(), line, column.Title() + ": " + what);
  }

  void Skip(TableColumn& column, std::size_t line) const {
    if (!skip_empty_) FailIn(column, line, InputFault::kEmptyCell, "the cell is empty");
    ++column.skipped;
  }

  [[nodiscard]] Extended Value(std::string_view cell, const TableColumn& column) const {
    Extended value = 0;
    try {
      value = Str2Float(cell);
    } catch (const EConvertError& error) {
      if (error.message_id() == rsNumberTooLarge) {
        FailIn(column, rows_.Line(), InputFault::kOutOfRange,
               Excerpt(cell) + " is beyond the range of extended precision");
      }
      FailIn(column, rows_.Line(), InputFault::kNotANumber, Excerpt(cell) + " is not a number");
    }
    if (!std::isfinite(value)) {
      FailIn(column, rows_.Line(), InputFault::kNotANumber,
             Excerpt(cell) + " is not a finite number");
    }
    return value;
  }

  RowReader& rows_;
  bool skip_empty_;
  std::size_t first_line_;
  std::size_t width_;
  bool has_header_ = false;
  std::vector<TableColumn> columns_;
};

}  // namespace

bool IsNumber(std::string_view text) {
  try {
    static_cast<void>(Str2Float(text));
  } catch (const EConvertError& error) {
    return error.message_id() == rsNumberTooLarge;
  }
  return true;
}

std::string TableColumn::Title() const {
  return ColumnTitle(number, name);
}

std::vector<TableColumn> ReadTable(TextInput input, const TableSelection& selection) {
  RowReader rows(std::move(input), selection.delimiter);
  if (!rows.Next())
    throw InputError(InputFault::kNoValues, rows.Name(), "there is nothing to read");
  ColumnCollector collector(rows, selection);
  if (!collector.HasHeader()) collector.AddCells();
  while (rows.Next()) collector.AddRow();
  return collector.Finish();
}

}  // namespace qorvex::cli
