#include "apps/common/column_collector.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/column_selection.h"
#include "apps/common/input_error.h"
#include "apps/common/threads.h"
#include "apps/common/whole_rows.h"

namespace qorvex::apps {

ColumnCollector::ColumnCollector(RowReader& rows, const TableSelection& selection)
    : missing_(&selection.format.missing),
      decimal_sign_(*rows.Format().decimal_sign),
      has_amounts_(selection.currency),
      needs_whole_rows_(selection.whole_rows),
      first_line_(rows.Line()),
      width_(rows.Cells().size()) {
  if (*rows.Format().header) header_.assign(rows.Cells().begin(), rows.Cells().end());
  columns_ = ChosenColumns(selection, header_, width_, rows.HasRowNames(), rows.Name());
  if (selection.columns.empty()) first_cells_.resize(columns_.size());
  keeps_gaps_ = HasLabels() || (needs_whole_rows_ && !first_cells_.empty());
  takes_numbers_directly_ = decimal_sign_ == '.' && !has_amounts_ && !missing_->IncludeNumbers();
  may_skip_rows_ = missing_->AreAllowed() && std::ranges::any_of(columns_, [&](const auto& column) {
                     return NeedsValueIn(column);
                   });
}

ColumnCollector ColumnCollector::ForMoreRows() const {
  ColumnCollector collector = *this;
  collector.header_.clear();
  for (TableColumn& column : collector.columns_)
    column = {.number = column.number, .name = column.name, .role = column.role};
  collector.first_cells_.assign(first_cells_.size(), {});
  collector.rows_ = 0;
  collector.skipped_rows_.clear();
  collector.has_rows_ = false;
  collector.blank_lines_ = 0;
  return collector;
}

void ColumnCollector::AddRow(const RowScanner& rows) {
  has_rows_ = true;
  AddBlankLines(rows.Name(), rows.Line(), rows.BlankLines() + std::exchange(blank_lines_, 0));
  AddCells(rows);
}

void ColumnCollector::AddCells(const RowScanner& rows) {
  RequireWidth(rows, width_, first_line_);
  const Cells cells = rows.Cells();
  if (may_skip_rows_ && LacksAValue(cells)) return SkipRow();
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const std::string_view cell = cells[columns_[i].number - 1];
    ColumnNumbers& numbers = columns_[i].numbers;
    if (takes_numbers_directly_ && !numbers.empty() && numbers.TryAppendCell(cell)) continue;
    AddCell(cell, i, rows);
  }
  ++rows_;
}

void ColumnCollector::AddAllRows(RowScanner& rows) {
  while (rows.Next()) AddRow(rows);
  blank_lines_ += rows.BlankLines();
}

void ColumnCollector::AddParts(std::span<Part> parts, const std::string& input, unsigned threads) {
  std::vector<std::size_t> first_rows;
  for (const Part& part : parts) {
    if (part.rows.has_rows_) AddBlankLines(input, part.first_line, std::exchange(blank_lines_, 0));
    AddFirstCells(part.rows.first_cells_);
    if (part.fault) std::rethrow_exception(part.fault);
    blank_lines_ += part.rows.blank_lines_;
    const std::size_t rows_before = rows_ + skipped_rows_.size();
    for (const std::size_t row : part.rows.skipped_rows_)
      skipped_rows_.push_back(rows_before + row);
    first_rows.push_back(rows_);
    rows_ += part.rows.rows_;
  }
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
      column.missing += more.missing;
    }
  });
}

Table ColumnCollector::Finish(const std::string& input) {
  Table table;
  table.header = std::move(header_);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    TableColumn& column = columns_[i];
    const bool is_empty = column.numbers.empty() && column.labels.empty();
    if (is_empty && (first_cells_.empty() || column.role != ColumnRole::kValues))
      throw InputError(InputFault::kNoValues, input, column.Title() + " has no values");
    column.numbers.ShrinkToFit();
    if (is_empty) {
      table.left_out.push_back({column.Title(), first_cells_[i].text_cell});
    } else {
      table.columns.push_back(std::move(column));
    }
  }
  if (table.columns.empty() || table.columns[0].role != ColumnRole::kValues)
    RefuseAll(input, table.left_out);
  table.skipped_rows = std::move(skipped_rows_);
  if (!needs_whole_rows_ || first_cells_.empty()) return table;
  KeepWholeRows(table.columns, rows_);
  if (table.columns[0].numbers.empty())
    throw InputError(InputFault::kNoValues, input, "every row has a missing value");
  return table;
}

void ColumnCollector::RefuseAll(const std::string& input,
                                const std::vector<LeftOutColumn>& columns) const {
  const auto text = std::ranges::find_if(
      first_cells_, [](const FirstCells& cells) { return cells.text != nullptr; });
  if (text == first_cells_.end())
    throw InputError(InputFault::kNoValues, input, columns[0].title + " has no values");
  if (columns.size() == 1) std::rethrow_exception(text->text);
  throw InputError(InputFault::kNoValues, input, "no column has a number");
}

bool ColumnCollector::LacksAValue(Cells cells) const {
  return std::ranges::any_of(columns_, [&](const TableColumn& column) {
    return NeedsValueIn(column) && missing_->Contains(cells[column.number - 1]);
  });
}

// Whether rows without a value in the column are skipped at once. A column that was not chosen may
// turn out to be without numbers, and is then left out.
bool ColumnCollector::NeedsValueIn(const TableColumn& column) const {
  if (column.role == ColumnRole::kLabels) return true;
  return needs_whole_rows_ && (first_cells_.empty() || column.role == ColumnRole::kWeights);
}

void ColumnCollector::AddCell(std::string_view cell, std::size_t index, const RowScanner& rows) {
  TableColumn& column = columns_[index];
  if (missing_->Contains(cell)) {
    ++column.missing;
    if (keeps_gaps_) column.gaps.push_back(rows_);
    return;
  }
  const CellPlace place{rows.Name(), rows.Line(), column.number, column.name};
  if (column.role == ColumnRole::kLabels) {
    if (cell.empty()) RefuseEmptyCell(place);
    return column.labels.Append(cell);
  }
  if (first_cells_.empty() || !column.numbers.empty() || column.role != ColumnRole::kValues)
    return AddNumber(cell, column, place);

  FirstCells& first = first_cells_[index];
  if (first.text) {
    if (!FindNumber(cell, decimal_sign_)) return;
    first.number_line = place.line;
    std::rethrow_exception(first.text);
  }
  try {
    AddNumber(cell, column, place);
    first.number_line = place.line;
  } catch (const InputError& error) {
    if (error.Fault() != InputFault::kNotANumber) throw;
    first.text = std::current_exception();
    first.text_cell = cell;
    first.text_line = place.line;
  }
}

void ColumnCollector::AddNumber(std::string_view cell, TableColumn& column,
                                const CellPlace& place) {
  bool appended = false;
  if (has_amounts_ && column.role == ColumnRole::kValues) {
    const Currency amount = AmountIn(cell, place, decimal_sign_);
    appended = column.numbers.TryAppend({amount.stored(), -Currency::kDecimals});
  } else {
    appended =
        column.numbers.TryAppendCell(decimal_sign_ == ',' ? WithDecimalPoint(cell, buffer_) : cell);
  }
  if (!appended) column.numbers.Append(NumberIn(cell, place, decimal_sign_));
}

// Throws the fault that rows one by one would have found first, if the columns up to here and the
// rows that follow are numbers and text.
void ColumnCollector::AddFirstCells(std::span<const FirstCells> following) {
  std::exception_ptr fault;
  std::size_t fault_line = std::numeric_limits<std::size_t>::max();
  for (std::size_t i = 0; i < following.size(); ++i) {
    FirstCells& known = first_cells_[i];
    const FirstCells& more = following[i];
    const std::size_t line = known.number_line != 0 ? more.text_line
                             : known.text           ? more.number_line
                                                    : 0;
    if (line != 0 && line < fault_line) {
      fault = known.text ? known.text : more.text;
      fault_line = line;
    }
    if (!known.text) {
      known.text = more.text;
      known.text_cell = more.text_cell;
      known.text_line = more.text_line;
    }
    if (known.number_line == 0) known.number_line = more.number_line;
  }
  if (fault) std::rethrow_exception(fault);
}

// Adds the lines before the end.
void ColumnCollector::AddBlankLines(const std::string& input, std::size_t end, std::size_t count) {
  if (count == 0) return;
  if (!missing_->AreAllowed())
    RefuseEmptyCell({input, end - count, columns_[0].number, columns_[0].name});
  for (; count > 0; --count) SkipRow();
}

void ColumnCollector::SkipRow() {
  if (needs_whole_rows_ && first_cells_.empty())
    skipped_rows_.push_back(rows_ + skipped_rows_.size());
  for (TableColumn& column : columns_) ++column.missing;
}

}  // namespace qorvex::apps
