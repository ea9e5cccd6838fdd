#include "apps/qorvex-gallery/model/sheet_file.h"

#include <string>
#include <utility>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/format_finder.h"
#include "apps/common/row_reader.h"

namespace qorvex::gallery {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

// Whether a reader would take the cell apart, or not know it as one when it looks for the
// delimiter.
bool NeedsQuotes(std::string_view cell, char delimiter, const SheetData& sheet) {
  if (cell.find_first_of(",;\"\r\n\t ") == cell.npos && cell.find(delimiter) == cell.npos)
    return cell.empty() && delimiter == ' ';
  return cell.find(delimiter) != cell.npos || !sheet.NumberIn(cell);
}

// Whether a first row with this cell is read as names; the words for missing values are not known
// when the file is read.
bool IsReadAsName(std::string_view cell, const SheetData& sheet) {
  static const apps::MissingWords usual;
  return apps::IsText(cell, sheet.Format().decimal_sign.value_or('.')) && !usual.Contains(cell);
}

void AppendQuoted(std::string& line, std::string_view cell) {
  line += '"';
  for (const char c : cell) line.append(c == '"' ? 2 : 1, c);
  line += '"';
}

}  // namespace

SheetData ReadSheet(apps::TextInput input, const apps::TableFormat& wanted, std::size_t bytes) {
  apps::RowReader reader(std::move(input), wanted);
  apps::RequireFirstRow(reader);
  const std::size_t width = reader.Cells().size();
  const std::size_t first_line = reader.Line();
  const bool has_names = *reader.Format().header;
  std::vector<std::string> names(width);
  if (has_names) names.assign(reader.Cells().begin(), reader.Cells().end());
  SheetData sheet(reader.Format(), names);
  sheet.Reserve(bytes);
  if (!has_names) sheet.AppendRow(reader.Cells());
  const std::vector<std::string_view> blank(width);
  apps::RowScanner& rows = reader.Scanner();
  while (rows.Next()) {
    apps::RequireWidth(rows, width, first_line);
    for (std::size_t i = sheet.Rows() == 0 ? 0 : rows.BlankLines(); i > 0; --i)
      sheet.AppendRow(blank);
    sheet.AppendRow(rows.Cells());
  }
  sheet.ShrinkToFit();
  // The encoding may be known only now.
  sheet.SetFormat(reader.Format());
  return sheet;
}

bool HasRowLikeNames(const SheetData& sheet) {
  if (sheet.HasNames() || sheet.Rows() == 0) return false;
  for (std::size_t column = 0; column < sheet.Columns(); ++column)
    if (IsReadAsName(sheet.Cell(0, column), sheet)) return true;
  return false;
}

bool HasNamesLikeARow(const SheetData& sheet) {
  for (std::size_t column = 0; column < sheet.Columns(); ++column)
    if (IsReadAsName(sheet.Name(column), sheet)) return false;
  return sheet.HasNames();
}

SheetFileForm FormOf(std::string_view start) {
  SheetFileForm form;
  form.has_mark = start.starts_with(kMark);
  if (form.has_mark) start.remove_prefix(kMark.size());
  form.has_delimiter_line = apps::FindDelimiterLine(start).has_value();
  form.has_crlf = start.substr(0, start.find('\n')).ends_with('\r');
  return form;
}

void WriteSheet(const SheetData& sheet, SheetFileForm form,
                const std::function<void(std::string_view text)>& write) {
  const std::string_view line_end = form.has_crlf ? "\r\n" : "\n";
  std::string line;
  const auto write_row = [&](const auto& cell) {
    line.clear();
    for (std::size_t column = 0; column < sheet.Columns(); ++column) {
      if (column > 0) line += form.delimiter;
      const std::string_view text = cell(column);
      if (NeedsQuotes(text, form.delimiter, sheet)) {
        AppendQuoted(line, text);
      } else {
        line += text;
      }
    }
    // A blank line at the end of the file would not be read as a row.
    if (line.empty()) line = "\"\"";
    write(line += line_end);
  };
  if (sheet.Columns() == 0) return;
  const bool has_names = form.has_names || sheet.HasNames();
  if (form.has_mark) write(kMark);
  // A first cell like that line would be taken for it.
  const std::string_view first = has_names          ? sheet.Name(0)
                                 : sheet.Rows() > 0 ? sheet.Cell(0, 0)
                                                    : std::string_view();
  if (form.has_delimiter_line || apps::FindDelimiterLine(first))
    write(std::string("sep=") + form.delimiter + std::string(line_end));
  if (has_names)
    write_row([&](std::size_t column) -> std::string_view { return sheet.Name(column); });
  for (std::size_t row = 0; row < sheet.Rows(); ++row)
    write_row([&](std::size_t column) { return sheet.Cell(row, column); });
}

}  // namespace qorvex::gallery
