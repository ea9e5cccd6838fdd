#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/compare_output.h"
#include "apps/qorvex/compare_report.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex compare trials.csv --column before --column after --paired
  qorvex compare monday.csv friday.csv --column speed
  qorvex compare monday.csv friday.csv --column 2 --column 3 --confidence 0.99)";

struct CompareArguments {
  TableArguments table;
  std::string second_file;
  bool paired = false;
  WrittenNumber confidence = {"0.95", 0.95L};
  OutputFormat output;
};

// The only column of the table that these arguments choose.
ComparedColumn ReadColumn(const TableArguments& table) {
  std::vector<TableColumn> columns = table.Read();
  if (columns.size() != 1) {
    throw InputError(InputFault::kNoSuchColumn, InputName(table.file),
                     "the table has " + Cardinal(columns.size(), "column") +
                         "; --column chooses the one to compare");
  }
  return {table.file, std::move(columns[0])};
}

std::pair<ComparedColumn, ComparedColumn> ReadFromOneFile(const TableArguments& table) {
  std::vector<TableColumn> columns = table.Read();
  if (columns.size() != 2) {
    throw InputError(InputFault::kNoSuchColumn, InputName(table.file),
                     Cardinal(columns.size(), "column") +
                         " instead of two; --column, twice, chooses the columns to compare");
  }
  return {{table.file, std::move(columns[0])}, {table.file, std::move(columns[1])}};
}

// A column that is chosen once is that of both files.
std::pair<ComparedColumn, ComparedColumn> ReadFromTwoFiles(const CompareArguments& arguments) {
  TableArguments first = arguments.table;
  first.selection.whole_rows = false;
  TableArguments second = first;
  second.file = arguments.second_file;
  const std::vector<std::string>& chosen = arguments.table.selection.columns;
  if (!chosen.empty()) {
    first.selection.columns = {chosen.front()};
    second.selection.columns = {chosen.back()};
  }
  return {ReadColumn(first), ReadColumn(second)};
}

// What tells one column from the other: their names, else their files, else their numbers.
void SetTitles(ComparedColumn& first, ComparedColumn& second) {
  if (first.column.name != second.column.name && !first.column.name.empty() &&
      !second.column.name.empty()) {
    first.title = first.column.name;
    second.title = second.column.name;
  } else if (first.file != second.file) {
    first.title = InputName(first.file);
    second.title = InputName(second.file);
  } else {
    first.title = ColumnTitle(first.column.number);
    second.title = ColumnTitle(second.column.number);
  }
}

// Rows of two files cannot be skipped together.
void RequireEveryValue(const ComparedColumn& compared) {
  const TableColumn& column = compared.column;
  if (column.missing == 0) return;
  throw InputError(InputFault::kEmptyCell, InputName(compared.file),
                   column.Title() + ": " + Cardinal(column.missing, "missing value") +
                       "; pairs from two files need every value");
}

void Compare(const CompareArguments& arguments) {
  if (arguments.table.selection.columns.size() > 2)
    throw CLI::ValidationError("--column", "more than two columns");
  if (arguments.second_file == "-" && arguments.table.file == "-")
    throw CLI::ValidationError("FILE", "standard input cannot be both files");
  auto [first, second] = arguments.second_file.empty() ? ReadFromOneFile(arguments.table)
                                                       : ReadFromTwoFiles(arguments);
  if (arguments.paired && !arguments.second_file.empty()) {
    RequireEveryValue(first);
    RequireEveryValue(second);
  }
  SetTitles(first, second);
  const std::size_t first_count = first.column.numbers.size();
  const std::size_t second_count = second.column.numbers.size();
  if (arguments.paired && first_count != second_count) {
    throw InputError(InputFault::kMalformed, InputName(first.file) + ", " + InputName(second.file),
                     "pairs need as many values in both columns; there are " +
                         std::to_string(first_count) + " and " + std::to_string(second_count));
  }
  const ComparisonReport report =
      ReportOn(first, second, arguments.paired, arguments.confidence.value);
  const ComparisonHeading heading{first, second, arguments.paired, arguments.confidence};
  RemarkOnUnderflow(report);
  WriteResult(arguments.output.IsJson() ? JsonOf(report, heading)
                                        : TextOf(report, heading, arguments.output));
}

}  // namespace

void AddCompare(CLI::App& program) {
  CLI::App& command = *program.add_subcommand(
      "compare", "Two columns side by side: figures, difference, tests and box plots");
  const auto arguments = std::make_shared<CompareArguments>();
  arguments->table.AddTo(command,
                         "Twice: the two columns; with two files, one of each. Once, with two\n"
                         "files: that column of both. Default: the only columns there are");
  command.add_option("FILE2", arguments->second_file, "The table of the second column")
      ->type_name("");
  command.add_flag_callback(
      "--paired", [arguments] { arguments->paired = arguments->table.selection.whole_rows = true; },
      "Values of the same row belong together: test their differences");
  AddConfidence(command, "The level of the confidence interval. Default: 0.95",
                arguments->confidence);
  arguments->output.AddTo(command);
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Compare(*arguments); });
}

}  // namespace qorvex::apps
