#include "apps/qorvex-gallery/model/sheet_file.h"

#include <string>
#include <utility>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/row_reader.h"

namespace qorvex::gallery {

namespace {

// Quotes cells with blanks or with any character that a reader may take for the delimiter.
void AppendCell(std::string& line, std::string_view cell, bool quotes_empty) {
  const bool plain = cell.find_first_of(",;\"\r\n\t ") == cell.npos;
  if (plain && !(cell.empty() && quotes_empty)) {
    line += cell;
    return;
  }
  line += '"';
  for (const char c : cell) line.append(c == '"' ? 2 : 1, c);
  line += '"';
}

}  // namespace

SheetData ReadSheet(apps::TextInput input, const apps::TableFormat& wanted, std::size_t bytes) {
  apps::RowReader rows(std::move(input), wanted);
  apps::RequireFirstRow(rows);
  const std::size_t width = rows.Cells().size();
  const std::size_t first_line = rows.Line();
  const apps::TableFormat& format = rows.Format();
  std::vector<std::string> names(width);
  if (*format.header) names.assign(rows.Cells().begin(), rows.Cells().end());
  SheetData sheet(format, names);
  sheet.Reserve(bytes);
  if (!*format.header) sheet.AppendRow(rows.Cells());
  const std::vector<std::string_view> blank(width);
  while (rows.Next()) {
    apps::RequireWidth(rows.Scanner(), width, first_line);
    for (std::size_t i = sheet.Rows() == 0 ? 0 : rows.BlankLines(); i > 0; --i)
      sheet.AppendRow(blank);
    sheet.AppendRow(rows.Cells());
  }
  sheet.ShrinkToFit();
  return sheet;
}

void WriteSheet(const SheetData& sheet, char delimiter,
                const std::function<void(std::string_view text)>& write, WriteNames names) {
  std::string line;
  const auto write_row = [&](const auto& cell) {
    line.clear();
    for (std::size_t column = 0; column < sheet.Columns(); ++column) {
      if (column > 0) line += delimiter;
      AppendCell(line, cell(column), delimiter == ' ');
    }
    // A blank line at the end of the file would not be read as a row.
    if (line.empty()) line = "\"\"";
    write(line += '\n');
  };
  if (sheet.Columns() == 0) return;
  if (names == WriteNames::kAlways || sheet.HasNames()) {
    write_row([&](std::size_t column) -> const std::string& { return sheet.Name(column); });
  }
  for (std::size_t row = 0; row < sheet.Rows(); ++row)
    write_row([&](std::size_t column) { return sheet.Cell(row, column); });
}

}  // namespace qorvex::gallery
