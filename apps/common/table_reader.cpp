#include "apps/common/table_reader.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <span>
#include <string_view>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/row_reader.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

using Cells = std::span<const std::string_view>;

bool HoldsText(Cells cells) {
  return std::ranges::any_of(cells, IsText);
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

// The positions, from 0, of the chosen columns without duplicates; of all columns if none is
// chosen. Weights or labels are the last.
std::vector<std::size_t> ChosenColumns(const TableSelection& selection,
                                       std::span<const std::string> names, std::size_t width,
                                       const std::string& input_name) {
  std::vector<std::size_t> indices;
  if (selection.columns.empty()) {
    indices.resize(width);
    std::iota(indices.begin(), indices.end(), std::size_t{0});
  }
  for (const std::string& column : selection.columns) {
    const std::size_t index = FindColumn(column, names, width, input_name);
    if (std::ranges::find(indices, index) == indices.end()) indices.push_back(index);
  }
  if (const auto& last = selection.weights ? selection.weights : selection.labels) {
    const std::size_t index = FindColumn(*last, names, width, input_name);
    std::erase(indices, index);
    if (indices.empty()) {
      const char* const what = selection.weights ? "weights" : "labels";
      throw InputError(InputFault::kNoSuchColumn, input_name,
                       selection.columns.empty()
                           ? std::string("there is no column beside the ") + what
                           : Excerpt(*last) + " is the column of the " + what);
    }
    indices.push_back(index);
  }
  return indices;
}

// Collects the values of the chosen columns from the rows.
class ColumnCollector {
 public:
  ColumnCollector(RowReader& rows, const TableSelection& selection)
      : rows_(rows),
        skip_empty_(selection.skip_empty),
        whole_rows_(selection.whole_rows),
        currency_(selection.currency),
        weighted_(selection.weights.has_value()),
        labelled_(selection.labels.has_value()),
        first_line_(rows.Line()),
        width_(rows.Cells().size()) {
    if (selection.header.value_or(HoldsText(rows.Cells())))
      header_.assign(rows.Cells().begin(), rows.Cells().end());
    for (const std::size_t index : ChosenColumns(selection, header_, width_, rows.Name())) {
      columns_.push_back({.number = index + 1, .name = HasHeader() ? header_[index] : ""});
    }
  }

  [[nodiscard]] bool HasHeader() const { return !header_.empty(); }

  // Adds the blank lines before the row, then the row.
  void AddRow() {
    const std::size_t first_blank = rows_.Line() - rows_.BlankLines();
    for (std::size_t line = first_blank; line < rows_.Line(); ++line) SkipRow(line);
    AddCells();
  }

  void AddCells() {
    RequireWidth(rows_, width_, first_line_);
    const auto cell_of = [this](const TableColumn& column) {
      return rows_.Cells()[column.number - 1];
    };
    if (skip_empty_ && whole_rows_ &&
        std::ranges::any_of(columns_, &std::string_view::empty, cell_of)) {
      return SkipRow(rows_.Line());
    }
    for (TableColumn& column : columns_) {
      const std::string_view cell = cell_of(column);
      if (cell.empty()) {
        Skip(column, rows_.Line());
      } else {
        Add(cell, column);
      }
    }
  }

  [[nodiscard]] Table Finish() {
    for (TableColumn& column : columns_) {
      if (column.numbers.empty() && column.labels.empty()) {
        throw InputError(InputFault::kNoValues, rows_.Name(), column.Title() + " has no values");
      }
      column.numbers.ShrinkToFit();
    }
    return {std::move(columns_), std::move(header_)};
  }

 private:
  [[nodiscard]] CellPlace Place(const TableColumn& column, std::size_t line) const {
    return {rows_.Name(), line, column.number, column.name};
  }

  void Add(std::string_view cell, TableColumn& column) const {
    const bool is_last = &column == &columns_.back();
    if (labelled_ && is_last) {
      column.labels.emplace_back(cell);
      return;
    }
    const bool is_amount = currency_ && !(weighted_ && is_last);
    const bool appended = is_amount ? column.numbers.TryAppend(AmountAt(cell, column))
                                    : column.numbers.TryAppendCell(cell);
    if (!appended) column.numbers.Append(NumberIn(cell, Place(column, rows_.Line())));
  }

  [[nodiscard]] DecimalNumber AmountAt(std::string_view cell, const TableColumn& column) const {
    return {AmountIn(cell, Place(column, rows_.Line())).stored(), -Currency::kDecimals};
  }

  void SkipRow(std::size_t line) {
    for (TableColumn& column : columns_) Skip(column, line);
  }

  void Skip(TableColumn& column, std::size_t line) const {
    if (!skip_empty_) RefuseEmptyCell(Place(column, line));
    ++column.skipped;
  }

  RowReader& rows_;
  bool skip_empty_;
  bool whole_rows_;
  bool currency_;
  bool weighted_;
  bool labelled_;
  std::size_t first_line_;
  std::size_t width_;
  std::vector<std::string> header_;
  std::vector<TableColumn> columns_;
};

}  // namespace

std::string TableColumn::Title() const {
  return ColumnTitle(number, name);
}

Table ReadTable(TextInput input, const TableSelection& selection) {
  RowReader rows(std::move(input), selection.delimiter);
  RequireFirstRow(rows);
  ColumnCollector collector(rows, selection);
  if (!collector.HasHeader()) collector.AddCells();
  while (rows.Next()) collector.AddRow();
  return collector.Finish();
}

}  // namespace qorvex::apps
