#include "apps/qorvex/table_arguments.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/format_arguments.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/progress.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

const char* Hint(InputFault fault, const TableSelection& selection) {
  switch (fault) {
    case InputFault::kNotANumber:
      if (!selection.format.missing.AreAllowed())
        return "; without --na error, missing values are skipped";
      if (selection.columns.empty())
        return "; --column chooses the columns, --na lists the words for missing values";
      // An amount with too many decimals is no missing value.
      return selection.currency ? "" : "; --na lists the words for missing values";
    case InputFault::kOtherDecimalSign:
      return "; --decimal tells the decimal sign";
    case InputFault::kEmptyCell:
      return "; without --na error, missing values are skipped";
    case InputFault::kWrongEncoding:
      return "; --encoding latin1 reads any bytes";
    default:
      return "";
  }
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

// "column 2 (name), column 5 (rate), with "12%" and 3 more".
std::string ListOf(const std::vector<LeftOutColumn>& columns) {
  constexpr std::size_t most_shown = 5;
  std::string text;
  for (std::size_t i = 0; i < std::min(columns.size(), most_shown); ++i) {
    const auto& [title, first_text] = columns[i];
    text += (i == 0 ? "" : ", ") + title;
    // It may have been meant as a number.
    if (first_text.find_first_of("0123456789") != first_text.npos)
      text += ", with " + Excerpt(first_text);
  }
  return columns.size() > most_shown
             ? text + " and " + Int2EStr(columns.size() - most_shown) + " more"
             : text;
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

CLI::Option& AddColumns(CLI::App& command, const std::string& option,
                        std::vector<std::string>& columns, const std::string& description) {
  return *command
              .add_option_function<std::vector<std::string>>(
                  option,
                  [&columns, option](const std::vector<std::string>& lists) {
                    for (const std::string& list : lists)
                      std::ranges::move(SplitList(LongName(option), list),
                                        std::back_inserter(columns));
                  },
                  description)
              ->type_name("NAME|N,...")
              ->allow_extra_args(false);
}

std::string TableHelp() {
  return std::string(R"(Tables:
  Each line is a row; every row has as many cells as the first.
  The first row is a header if any of its cells is text, that is, neither a number
  nor a missing value; --header or --no-header overrides this. If the header is one
  cell shorter than the rows, or only its first cell is empty, the first column
  holds the names of the rows.
  Without --column, columns without a number are left out.)") +
         kTextHelp + R"(
  Blank lines before the first row and after the last are ignored; a blank line
  between rows is a row of empty cells.)";
}

void TableArguments::AddFileTo(CLI::App& command) {
  AddFile(command, file, "FILE", "The table to read");
  AddHeader(command, selection.format.header);
  AddTextFormat(command, selection.format);
  AddMissingWords(command, selection.format.missing);
}

void TableArguments::AddTo(CLI::App& command, const char* repetition) {
  AddColumns(command, "-c,--column", selection.columns,
             std::string("A column, by name or by number from 1; a name takes precedence. Several\n"
                         "have commas between them; a name with a comma is quoted as in CSV.\n") +
                 repetition);
  AddFileTo(command);
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
  AddFileTo(command);
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

void TableArguments::AddLabelsTo(CLI::App& command, const std::string& description) {
  AddColumns(command, "--by", selection.labels, description);
}

void TableArguments::RemarkOn(const Table& table) const {
  const auto remark = [this](const std::string& text) {
    WriteRemark(OnOneLine(InputName(file)) + ": " + text);
  };
  if (!selection.format.encoding && table.format.encoding == Encoding::kLatin1)
    remark("the text is not UTF-8 and was read as Latin-1; --encoding tells the encoding");
  const std::string doubt = selection.format.header ? "" : DoubtOf(table);
  if (!doubt.empty()) {
    remark("the first row was read as a header because " + doubt +
           "; --header or --no-header overrides this");
  }
  if (table.has_doubtful_row_names) {
    remark(
        "the header is one cell shorter than the rows: the first column was read as their names");
  }
  if (!table.left_out.empty()) remark("left out, without a number: " + ListOf(table.left_out));
}

std::vector<TableColumn> TableArguments::Read(unsigned threads) const {
  return ReadAll(threads).columns;
}

Table TableArguments::ReadAll(unsigned threads) const {
  try {
    Table table = ReadTable(OpenWithProgress(file), selection, threads);
    RemarkOn(table);
    return table;
  } catch (const InputError& error) {
    throw InputError(error.Fault(), std::string(error.what()) + Hint(error.Fault(), selection));
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
