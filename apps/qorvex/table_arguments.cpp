#include "apps/qorvex/table_arguments.h"

#include <string_view>

#include "apps/qorvex/input_error.h"
#include "apps/qorvex/text_input.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::cli {

const char* const kTableHelp = R"(Tables:
  One row a line; every row has as many cells as the first.
  The first row is a header when any of its cells is text, that is, neither empty
  nor a number.
  The delimiter is the comma, semicolon or tab (the first of these three that the
  first line contains outside quotes), otherwise any run of blanks.
  Cells may be quoted: "1.5", "a, b", "say ""hello""", also across lines.
  UTF-8 with or without byte order mark; lines end with LF or CR LF.
  Numbers have a decimal point and an optional exponent and are read to 80 bits
  (64 bits of mantissa), correctly rounded, under every locale. Infinities and
  NaN are refused. There are no comments.
  Blank lines before the first row and after the last are ignored; one between
  rows counts as a row of empty cells.)";

namespace {

char ParseDelimiter(const std::string& text) {
  if (text == "comma") return ',';
  if (text == "semicolon") return ';';
  if (text == "tab") return '\t';
  if (text == "space") return ' ';
  constexpr std::string_view in_cells = "0123456789+-.eE\"\r\n";
  const bool one_character = text.size() == 1 && static_cast<unsigned char>(text[0]) < 0x80;
  if (!one_character || in_cells.find(text[0]) != std::string_view::npos) {
    throw CLI::ValidationError(
        "--delimiter", Excerpt(text) +
                           " is not comma, semicolon, tab, space or one ASCII character that "
                           "occurs neither in numbers nor in quoting");
  }
  return text[0];
}

std::string Hint(InputFault fault, const TableSelection& selection) {
  if (fault == InputFault::kNotANumber && selection.columns.empty()) {
    return "; --column chooses the columns to read";
  }
  if (fault == InputFault::kEmptyCell) return "; --skip-empty skips empty cells";
  return "";
}

// Such a name may well be a damaged number in a table without a header.
bool LooksLikeADamagedNumber(std::string_view name) {
  constexpr std::string_view minus_sign = "\xE2\x88\x92";
  constexpr std::string_view starts = "0123456789+-.";
  const bool begins_like_one = name.starts_with(minus_sign) ||
                               (!name.empty() && starts.find(name[0]) != std::string_view::npos);
  return begins_like_one && !IsNumber(name);
}

}  // namespace

void TableArguments::AddTo(CLI::App& command) {
  command.add_option("FILE", file, "The table to read; - is standard input")
      ->type_name("")
      ->required();
  command
      .add_option("--column", selection.columns,
                  "A column, by name or by number from 1; a name wins over a number.\n"
                  "Repeat it for more columns. Default: every column")
      ->type_name("NAME|N")
      ->allow_extra_args(false);
  command
      .add_option_function<std::string>(
          "--delimiter",
          [this](const std::string& text) { selection.delimiter = ParseDelimiter(text); },
          "One character, or the word comma, semicolon, tab or space\n"
          "(space: any run of blanks). Default: detected")
      ->type_name("C");
  command.add_flag("--skip-empty", selection.skip_empty,
                   "Skip empty cells and say how many, instead of refusing them");
}

std::vector<TableColumn> TableArguments::Read() const {
  try {
    std::vector<TableColumn> columns = ReadTable(OpenTextInput(file), selection);
    for (const TableColumn& column : columns) {
      if (LooksLikeADamagedNumber(column.name)) {
        WriteRemark(OnOneLine(InputName(file)) + ": the first row was taken for a header because " +
                    Excerpt(column.name) + " is not a number");
      }
      if (column.skipped == 0) continue;
      WriteRemark(OnOneLine(InputName(file)) + ": " + column.Title() + ": skipped " +
                  Int2EStr(column.skipped) +
                  (column.skipped == 1 ? " empty cell" : " empty cells"));
    }
    return columns;
  } catch (const InputError& error) {
    throw InputError(error.Fault(), error.what() + Hint(error.Fault(), selection));
  }
}

}  // namespace qorvex::cli
