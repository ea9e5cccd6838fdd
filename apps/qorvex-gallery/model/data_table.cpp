#include "apps/qorvex-gallery/model/data_table.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/row_reader.h"
#include "qorvex/base/text.h"

namespace qorvex::gallery {

namespace {

using apps::InputError;
using apps::InputFault;

QString FromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Quotes cells with blanks or with any character that a reader may take for the delimiter.
std::string CsvCell(std::string_view cell) {
  if (cell.find_first_of(",;\"\r\n\t ") == std::string_view::npos) return std::string(cell);
  std::string quoted = "\"";
  for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

}  // namespace

bool SameNumber(Extended a, Extended b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

DataTable::DataTable(apps::TextInput input) : input_name_(input.name) {
  apps::RowReader rows(std::move(input));
  apps::RequireFirstRow(rows);
  const std::size_t width = rows.Cells().size();
  const std::size_t first_line = rows.Line();
  has_header_ = *rows.Format().header;
  if (has_header_) {
    names_.assign(rows.Cells().begin(), rows.Cells().end());
  } else {
    names_.resize(width);
    AppendRow({rows.Cells().begin(), rows.Cells().end()}, rows.Line());
  }
  while (rows.Next()) {
    apps::RequireWidth(rows, width, first_line);
    for (std::size_t i = lines_.empty() ? 0 : rows.BlankLines(); i > 0; --i)
      AppendRow(std::vector<std::string_view>(width), rows.Line() - i);
    AppendRow({rows.Cells().begin(), rows.Cells().end()}, rows.Line());
  }
  first_column_names_rows_ = Rows() > 0 && apps::IsText(CellRead(0, 0));
  changes_.resize(width);
  saved_.resize(width);
}

void DataTable::AppendRow(const std::vector<std::string_view>& cells, std::size_t line) {
  for (const std::string_view cell : cells) {
    text_ += cell;
    ends_.push_back(text_.size());
  }
  lines_.push_back(line);
}

std::string_view DataTable::CellRead(std::size_t row, std::size_t column) const {
  const std::size_t index = row * Columns() + column;
  const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
  return std::string_view(text_).substr(begin, ends_[index] - begin);
}

std::string_view DataTable::Cell(std::size_t row, std::size_t column) const {
  const auto change = changes_[column].find(row);
  return change == changes_[column].end() ? CellRead(row, column)
                                          : std::string_view(change->second);
}

bool DataTable::HasDoubtfulHeader() const {
  return has_header_ &&
         std::ranges::any_of(names_, [](const std::string& name) { return apps::IsNumber(name); });
}

QString DataTable::Title(std::size_t column) const {
  return names_[column].empty()
             ? QCoreApplication::translate("qorvex::gallery::DataPage", "Column %1").arg(column + 1)
             : FromUtf8(names_[column]);
}

std::size_t DataTable::Find(const QString& name) const {
  const auto named = std::ranges::find(names_, name.toStdString());
  if (!name.isEmpty() && named != names_.end())
    return static_cast<std::size_t>(named - names_.begin());
  for (std::size_t column = 0; Rows() > 0 && column < Columns(); ++column)
    if (!apps::IsText(CellRead(0, column))) return column;
  return 0;
}

QString DataTable::RowName(std::size_t row) const {
  return first_column_names_rows_ ? FromUtf8(CellRead(row, 0)) : QLocale().toString(row + 1);
}

Extended DataTable::NumberIn(std::string_view cell, std::size_t row, std::size_t column) const {
  if (cell.empty()) return std::numeric_limits<Extended>::quiet_NaN();
  return apps::NumberIn(cell, {input_name_, lines_[row], column + 1, names_[column]});
}

TQorFloatVector DataTable::Numbers(std::size_t column) const {
  auto numbers = TQorFloatVector::ForOverwrite(Rows());
  bool any = false;
  for (std::size_t row = 0; row < Rows(); ++row) {
    numbers[row] = NumberIn(CellRead(row, column), row, column);
    any = any || !std::isnan(numbers[row]);
  }
  if (!any) {
    throw InputError(InputFault::kNoValues, input_name_,
                     apps::ColumnTitle(column + 1, names_[column]) + " has no values");
  }
  for (const auto& [row, text] : changes_[column]) numbers[row] = NumberIn(text, row, column);
  return numbers;
}

void DataTable::SetNumber(std::size_t row, std::size_t column, Extended number) {
  if (SameNumber(number, NumberIn(CellRead(row, column), row, column))) {
    changes_[column].erase(row);
  } else {
    changes_[column][row] = std::isnan(number) ? std::string() : Float2Str(number);
  }
}

void DataTable::WriteCsv(const std::function<void(std::string_view text)>& write) const {
  const auto write_row = [&](const auto& cell) {
    std::string line;
    for (std::size_t column = 0; column < Columns(); ++column) {
      if (column > 0) line += ',';
      line += CsvCell(cell(column));
    }
    // A blank line at the end of the file would not be read as a row.
    if (line.empty()) line = "\"\"";
    write(line + '\n');
  };
  if (has_header_) write_row([this](std::size_t column) { return names_[column]; });
  for (std::size_t row = 0; row < Rows(); ++row)
    write_row([this, row](std::size_t column) { return Cell(row, column); });
}

}  // namespace qorvex::gallery
