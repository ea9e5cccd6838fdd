#include "apps/qorvex/result_table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/text_table.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

using Column = ResultTable::Column;

bool IsNumber(const Cell& cell) {
  return std::visit(
      Overloaded{[](std::monostate) { return false; }, [](const std::string&) { return false; },
                 [](const Interval<Extended>&) { return false; },
                 [](Extended figure) { return !std::isnan(figure); },
                 [](const Probability& of) { return !std::isnan(of.p); },
                 [](const auto&) { return true; }},
      cell);
}

// Adds a line of cells of the table in CSV. The function gives the texts of a cell.
template <class Cells, class AppendCell>
void AppendCsvLine(std::string& csv, const Cells& cells, AppendCell append) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < cells.size(); ++i) append(cells[i], i, texts);
  for (std::size_t i = 0; i < texts.size(); ++i) csv += (i > 0 ? "," : "") + CsvText(texts[i]);
  csv += '\n';
}

std::string CsvCell(const Cell& cell, const FigureFormat& format) {
  const bool exists = std::holds_alternative<std::string>(cell) || IsNumber(cell);
  return exists ? CellText(cell, format) : "";
}

template <class T>
bool HasCellsOf(const ResultTable& table, std::size_t column) {
  return std::ranges::any_of(table.rows, [column](const std::vector<Cell>& row) {
    return std::holds_alternative<T>(row[column]);
  });
}

std::vector<std::vector<std::string>> TextRows(const ResultTable& table,
                                               const FigureFormat& format) {
  std::vector<std::vector<std::string>> rows(1);
  for (const Column& column : table.columns) rows[0].push_back(OnOneLine(column.title));
  for (const std::vector<Cell>& row : table.rows) {
    std::vector<std::string>& texts = rows.emplace_back();
    for (const Cell& cell : row) texts.push_back(OnOneLine(CellText(cell, format)));
  }
  return rows;
}

// Blanks behind the numbers of a column, so that their decimal points are below each other when the
// column ends on the right. The first row is the heading.
void AlignPoints(std::vector<std::vector<std::string>>& rows, const ResultTable& table,
                 std::size_t column) {
  const auto behind_whole_part = [&](std::size_t row) {
    const std::string& text = rows[row + 1][column];
    return text.size() - std::min(text.find_first_of(".e"), text.size());
  };
  std::size_t longest = 0;
  for (std::size_t i = 0; i < table.rows.size(); ++i)
    if (IsNumber(table.rows[i][column])) longest = std::max(longest, behind_whole_part(i));
  for (std::size_t i = 0; i < table.rows.size(); ++i)
    if (IsNumber(table.rows[i][column]))
      rows[i + 1][column].append(longest - behind_whole_part(i), ' ');
}

}  // namespace

std::string CellText(const Cell& cell, const FigureFormat& format) {
  return std::visit(Overloaded{[](std::monostate) { return std::string(); },
                               [](const std::string& text) { return text; },
                               [](const WrittenNumber& number) { return number.text; },
                               [&](const Interval<Extended>& interval) {
                                 if (std::isnan(interval.least)) return format.Text(interval.least);
                                 return format.Text(interval.least) + " to " +
                                        format.Text(interval.greatest);
                               },
                               [&](const auto& figure) { return format.Text(figure); }},
                    cell);
}

void WriteCell(JsonWriter& json, const Cell& cell) {
  std::visit(Overloaded{[&](std::monostate) { json.Null(); },
                        [&](const std::string& text) { json.String(text); },
                        [&](std::uint64_t number) { json.Integer(number); },
                        [&](const WrittenNumber& number) { json.Number(number.value); },
                        [&](Currency amount) { json.Amount(amount); },
                        [&](Extended figure) { json.Number(figure); },
                        [&](const Probability& probability) { json.Number(probability.p); },
                        [&](const Interval<Extended>& ends) { WriteInterval(json, ends); }},
             cell);
}

std::string CsvText(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + '"';
}

std::string CsvOf(const ResultTable& table, const FigureFormat& format) {
  std::vector<bool> is_interval;
  for (std::size_t i = 0; i < table.columns.size(); ++i)
    is_interval.push_back(HasCellsOf<Interval<Extended>>(table, i));
  std::string csv;
  AppendCsvLine(csv, table.columns,
                [&](const Column& column, std::size_t i, std::vector<std::string>& texts) {
                  if (is_interval[i]) {
                    texts.insert(texts.end(), {column.key + "_lower", column.key + "_upper"});
                  } else {
                    texts.push_back(column.key);
                  }
                });
  for (const std::vector<Cell>& row : table.rows) {
    AppendCsvLine(csv, row, [&](const Cell& cell, std::size_t i, std::vector<std::string>& texts) {
      const auto* const ends = std::get_if<Interval<Extended>>(&cell);
      if (ends != nullptr) {
        texts.insert(texts.end(), {CsvCell(ends->least, format), CsvCell(ends->greatest, format)});
      } else {
        texts.insert(texts.end(), is_interval[i] ? 2 : 1, CsvCell(cell, format));
      }
    });
  }
  return csv;
}

std::string AlignedTextOf(const ResultTable& table, const FigureFormat& format) {
  std::vector<std::vector<std::string>> rows = TextRows(table, format);
  std::vector<bool> on_the_left;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    on_the_left.push_back(HasCellsOf<std::string>(table, i));
    AlignPoints(rows, table, i);
  }
  const bool has_titles =
      std::ranges::any_of(rows[0], [](const std::string& title) { return !title.empty(); });
  if (!has_titles) rows.erase(rows.begin());
  return AlignedRows(rows, on_the_left);
}

std::string TabbedTextOf(const ResultTable& table, const FigureFormat& format) {
  std::string text;
  for (const std::vector<std::string>& row : TextRows(table, format)) {
    for (const std::string& cell : row) text += cell + '\t';
    text.erase(text.find_last_not_of('\t') + 1);
    text += '\n';
  }
  return text;
}

void WriteRows(JsonWriter& json, const ResultTable& table) {
  json.BeginArray();
  for (const std::vector<Cell>& row : table.rows) {
    json.BeginObject();
    for (std::size_t i = 0; i < row.size(); ++i) {
      json.Key(table.columns[i].key);
      WriteCell(json, row[i]);
    }
    json.EndObject();
  }
  json.EndArray();
}

ResultTable Transposed(const ResultTable& table) {
  ResultTable turned;
  turned.columns.push_back(table.columns[0]);
  for (const std::vector<Cell>& row : table.rows) {
    const std::string name = CellText(row[0], {});
    turned.columns.push_back({name, ShortName(name)});
  }
  for (std::size_t i = 1; i < table.columns.size(); ++i) {
    std::vector<Cell>& cells = turned.rows.emplace_back();
    cells.emplace_back(table.columns[i].title);
    for (const std::vector<Cell>& row : table.rows) cells.push_back(row[i]);
  }
  return turned;
}

std::string Printed(const ResultTable& table, const OutputFormat& output, int significant_digits) {
  const FigureFormat format = output.ForReport(significant_digits);
  switch (output.form) {
    case OutputForm::kText:
      return TabbedTextOf(table, format);
    case OutputForm::kTable:
      return AlignedTextOf(table, format);
    case OutputForm::kCsv:
      return CsvOf(table, format);
    case OutputForm::kJson:
      break;
  }
  JsonWriter json;
  WriteRows(json, table);
  return json.TakeText();
}

}  // namespace qorvex::apps
