#include "apps/qorvex/table_arguments.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

std::string Hint(InputFault fault, const TableSelection& selection) {
  if (fault == InputFault::kNotANumber && selection.columns.empty()) {
    return "; --column chooses the columns to read";
  }
  if (fault == InputFault::kEmptyCell) {
    return selection.whole_rows ? "; --skip-empty skips such rows"
                                : "; --skip-empty skips empty cells";
  }
  return "";
}

// In a table without a header, such a name may be a damaged number.
bool LooksLikeADamagedNumber(std::string_view name) {
  constexpr std::string_view minus_sign = "\xE2\x88\x92";
  constexpr std::string_view starts = "0123456789+-.";
  const bool begins_like_one = name.starts_with(minus_sign) ||
                               (!name.empty() && starts.find(name[0]) != std::string_view::npos);
  return begins_like_one && !IsNumber(name);
}

// Why a row that was read as a header may be data; empty if there is no reason to think so.
std::string DoubtOf(const Table& table) {
  const auto is_number = [](std::string_view cell) { return !cell.empty() && IsNumber(cell); };
  const auto is_text = [](std::string_view cell) { return IsText(cell); };
  const auto number = std::ranges::find_if(table.header, is_number);
  if (number != table.header.end()) {
    return Excerpt(*std::ranges::find_if(table.header, is_text)) + " is not a number, although " +
           Excerpt(*number) + " is";
  }
  const auto damaged =
      std::ranges::find_if(table.columns, LooksLikeADamagedNumber, &TableColumn::name);
  return damaged == table.columns.end() ? "" : Excerpt(damaged->name) + " is not a number";
}

void AddHeader(CLI::App& command, std::optional<bool>& header) {
  const auto add = [&](const char* name, bool value, const char* description) {
    return command.add_flag_callback(
        name, [&header, value] { header = value; }, description);
  };
  CLI::Option* const with =
      add("--header", true, "The first row is a header. Default: if any of its cells is text");
  add("--no-header", false, "The first row is data")->excludes(with);
}

}  // namespace

std::string TableHelp() {
  return std::string(R"(Tables:
  Each line is a row; every row has as many cells as the first.
  The first row is a header if any of its cells is text, that is, neither empty
  nor a number; --header or --no-header overrides this.)") +
         kTextHelp + R"(
  Blank lines before the first row and after the last are ignored; a blank line
  between rows is a row of empty cells.)";
}

void TableArguments::AddFileTo(CLI::App& command, const char* skip_empty) {
  AddFile(command, file, "FILE", "The table to read");
  AddHeader(command, selection.header);
  AddDelimiter(command, selection.delimiter);
  command.add_flag("--skip-empty", selection.skip_empty, skip_empty);
}

void TableArguments::AddTo(CLI::App& command, const char* repetition) {
  command
      .add_option("--column", selection.columns,
                  std::string("A column, by name or by number from 1; a name takes precedence.\n") +
                      repetition)
      ->type_name("NAME|N")
      ->allow_extra_args(false);
  AddFileTo(command, "Skip empty cells and report how many, instead of refusing them");
}

void TableArguments::AddPairTo(CLI::App& command) {
  selection.whole_rows = true;
  selection.columns.resize(2);
  const auto add_column = [&](std::size_t index, const char* name, const char* description) {
    command.add_option(name, selection.columns[index], description)
        ->type_name("NAME|N")
        ->required();
  };
  add_column(0, "--x",
             "The column of x, by name or by number from 1;\n"
             "a name takes precedence");
  add_column(1, "--y", "The column of y");
  AddFileTo(command,
            "Skip rows in which x or y is empty and report how many,\n"
            "instead of refusing them");
}

CLI::Option* TableArguments::AddWeightsTo(CLI::App& command) {
  return command
      .add_option_function<std::string>(
          "--weights",
          [this](const std::string& column) {
            selection.weights = column;
            selection.whole_rows = true;
          },
          "The column of the weights of the rows")
      ->type_name("NAME|N");
}

std::vector<TableColumn> TableArguments::Read(unsigned threads) const {
  try {
    Table table = ReadTable(OpenTextInput(file), selection, threads);
    const std::string doubt = selection.header ? "" : DoubtOf(table);
    if (!doubt.empty()) {
      WriteRemark(OnOneLine(InputName(file)) + ": the first row was read as a header because " +
                  doubt + "; --header or --no-header overrides this");
    }
    std::vector<TableColumn>& columns = table.columns;
    for (const TableColumn& column : columns) {
      if (column.skipped == 0 || selection.whole_rows) continue;
      WriteRemark(OnOneLine(InputName(file)) + ": " + column.Title() + ": skipped " +
                  Cardinal(column.skipped, "empty cell"));
    }
    if (selection.whole_rows && columns[0].skipped != 0) {
      WriteRemark(OnOneLine(InputName(file)) + ": skipped " + Cardinal(columns[0].skipped, "row") +
                  " with an empty cell");
    }
    return std::move(columns);
  } catch (const InputError& error) {
    throw InputError(error.Fault(), error.what() + Hint(error.Fault(), selection));
  }
}

const TableColumn& ColumnOf(const std::vector<TableColumn>& columns, const std::string& chosen) {
  const auto named = std::ranges::find(columns, chosen, &TableColumn::name);
  if (named != columns.end()) return *named;
  std::size_t number = 0;
  std::from_chars(chosen.data(), chosen.data() + chosen.size(), number);
  return *std::ranges::find(columns, number, &TableColumn::number);
}

}  // namespace qorvex::apps
