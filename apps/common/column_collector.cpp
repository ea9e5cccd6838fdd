#include "apps/common/column_collector.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <numeric>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/threads.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

using Cells = std::span<const std::string_view>;

bool HoldsText(Cells cells) {
  return std::ranges::any_of(cells, [](std::string_view cell) { return IsText(cell); });
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

// The chosen columns without duplicates, all columns if none is chosen; then the weights and the
// labels.
std::vector<TableColumn> ChosenColumns(const TableSelection& selection,
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
  const auto column_of = [&](std::size_t index, ColumnRole role) {
    return TableColumn{
        .number = index + 1, .name = names.empty() ? "" : names[index], .role = role};
  };
  std::vector<TableColumn> others;
  const auto add_other = [&](const std::string& column, ColumnRole role) {
    const std::size_t index = FindColumn(column, names, width, input_name);
    const auto refuse = [&](ColumnRole known) {
      const char* const what = known == ColumnRole::kWeights ? "weights" : "labels";
      throw InputError(InputFault::kNoSuchColumn, input_name,
                       selection.columns.empty() && indices.empty()
                           ? std::string("there is no column beside the ") + what
                           : Excerpt(column) + " is the column of the " + what);
    };
    std::erase(indices, index);
    if (indices.empty()) refuse(role);
    const auto known = std::ranges::find(others, index + 1, &TableColumn::number);
    if (known == others.end()) {
      others.push_back(column_of(index, role));
    } else if (known->role != role) {
      refuse(known->role);
    }
  };
  if (selection.weights) add_other(*selection.weights, ColumnRole::kWeights);
  for (const std::string& column : selection.labels) add_other(column, ColumnRole::kLabels);
  std::vector<TableColumn> columns;
  for (const std::size_t index : indices) columns.push_back(column_of(index, ColumnRole::kValues));
  std::ranges::move(others, std::back_inserter(columns));
  return columns;
}

}  // namespace

ColumnCollector::ColumnCollector(const RowReader& rows, const TableSelection& selection)
    : selection_(&selection), first_line_(rows.Line()), width_(rows.Cells().size()) {
  if (selection.header.value_or(HoldsText(rows.Cells())))
    header_.assign(rows.Cells().begin(), rows.Cells().end());
  columns_ = ChosenColumns(selection, header_, width_, rows.Name());
}

ColumnCollector ColumnCollector::ForMoreRows() const {
  ColumnCollector collector = *this;
  collector.header_.clear();
  for (TableColumn& column : collector.columns_)
    column = {.number = column.number, .name = column.name, .role = column.role};
  collector.has_rows_ = false;
  collector.blank_lines_ = 0;
  return collector;
}

void ColumnCollector::AddRow(const RowReader& rows) {
  has_rows_ = true;
  AddBlankLines(rows.Name(), rows.Line(), rows.BlankLines() + std::exchange(blank_lines_, 0));
  AddCells(rows);
}

void ColumnCollector::AddCells(const RowReader& rows) {
  RequireWidth(rows, width_, first_line_);
  const Cells cells = rows.Cells();
  const auto cell_of = [cells](const TableColumn& column) { return cells[column.number - 1]; };
  const auto must_not_be_missing = [&](const TableColumn& column) {
    return (selection_->whole_rows || column.role == ColumnRole::kLabels) &&
           cell_of(column).empty();
  };
  if (selection_->skip_empty && std::ranges::any_of(columns_, must_not_be_missing))
    return SkipRow(rows.Name(), rows.Line());
  for (TableColumn& column : columns_) {
    const std::string_view cell = cell_of(column);
    if (cell.empty()) {
      Skip(column, rows.Name(), rows.Line());
      if (!selection_->labels.empty()) column.gaps.push_back(columns_.back().labels.size());
    } else {
      Add(cell, column, rows);
    }
  }
}

void ColumnCollector::AddAllRows(RowReader& rows) {
  while (rows.Next()) AddRow(rows);
  blank_lines_ += rows.BlankLines();
}

void ColumnCollector::AddParts(std::span<Part> parts, const std::string& input, unsigned threads) {
  for (const Part& part : parts) {
    if (part.rows.has_rows_) AddBlankLines(input, part.first_line, std::exchange(blank_lines_, 0));
    if (part.fault) std::rethrow_exception(part.fault);
    blank_lines_ += part.rows.blank_lines_;
  }
  std::vector<std::size_t> first_rows{columns_.back().labels.size()};
  for (const Part& part : parts)
    first_rows.push_back(first_rows.back() + part.rows.columns_.back().labels.size());
  ForEachIndex(columns_.size(), threads, [&](std::size_t i) {
    TableColumn& column = columns_[i];
    std::size_t size = column.numbers.size();
    for (const Part& part : parts) size += part.rows.columns_[i].numbers.size();
    column.numbers.Reserve(size);
    for (std::size_t k = 0; k < parts.size(); ++k) {
      const TableColumn more = std::move(parts[k].rows.columns_[i]);
      column.numbers.Append(more.numbers);
      column.labels.Append(more.labels);
      for (const std::size_t row : more.gaps) column.gaps.push_back(first_rows[k] + row);
      column.skipped += more.skipped;
    }
  });
}

Table ColumnCollector::Finish(const std::string& input) {
  for (TableColumn& column : columns_) {
    if (column.numbers.empty() && column.labels.empty())
      throw InputError(InputFault::kNoValues, input, column.Title() + " has no values");
    column.numbers.ShrinkToFit();
  }
  return {std::move(columns_), std::move(header_)};
}

void ColumnCollector::Add(std::string_view cell, TableColumn& column, const RowReader& rows) const {
  if (column.role == ColumnRole::kLabels) return column.labels.Append(cell);
  const CellPlace place{rows.Name(), rows.Line(), column.number, column.name};
  bool appended = false;
  if (selection_->currency && column.role == ColumnRole::kValues) {
    appended = column.numbers.TryAppend({AmountIn(cell, place).stored(), -Currency::kDecimals});
  } else {
    appended = column.numbers.TryAppendCell(cell);
  }
  if (!appended) column.numbers.Append(NumberIn(cell, place));
}

// Adds the lines before the end.
void ColumnCollector::AddBlankLines(const std::string& input, std::size_t end, std::size_t count) {
  for (std::size_t line = end - count; line < end; ++line) SkipRow(input, line);
}

void ColumnCollector::SkipRow(const std::string& input, std::size_t line) {
  for (TableColumn& column : columns_) Skip(column, input, line);
}

void ColumnCollector::Skip(TableColumn& column, const std::string& input, std::size_t line) const {
  if (!selection_->skip_empty) RefuseEmptyCell({input, line, column.number, column.name});
  ++column.skipped;
}

}  // namespace qorvex::apps
