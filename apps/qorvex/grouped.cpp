#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/class_table.h"
#include "apps/common/input_error.h"
#include "apps/common/sample_figures.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/figures.h"
#include "apps/qorvex/grouped_figures.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr const char* kHelp = R"(

The table of classes of equal width, and the figures that remain when every value
counts as the middle of its class. The file has the values, or with --counts the
number of values in each class. --csv and --table give the classes only.

Examples:
  qorvex grouped speeds.csv --column speed
  qorvex grouped speeds.csv --column speed --lower 299600 --width 50
  qorvex grouped waiting.csv --counts visitors --lower 0 --width 5)";

constexpr int kMostClasses = 1'000'000;

struct GroupedArguments {
  TableArguments table;
  bool has_counts = false;
  // Without a text if not given.
  WrittenNumber lower;
  WrittenNumber width;
  bool population = false;
  OutputFormat output;
};

[[noreturn]] void Refuse(const GroupedArguments& arguments, const TableColumn& column,
                         const std::string& what) {
  throw InputError(InputFault::kOutOfRange, InputName(arguments.table.file),
                   column.Title() + ": " + what);
}

TQorLWordVector CountsOf(const TableColumn& column, const GroupedArguments& arguments) {
  constexpr Extended most = std::numeric_limits<std::uint32_t>::max();
  // The classes behind it would move.
  if (column.missing > 0) Refuse(arguments, column, "a count is missing; 0 stands for none");
  TQorLWordVector counts;
  Extended sum = 0;
  for (const Extended count : column.numbers.Values()) {
    if (count < 0 || count > most || count != std::floor(count)) {
      Refuse(arguments, column,
             Float2Str(count) + " is not a whole number from 0 to " + Float2Str(most));
    }
    counts.Append(static_cast<std::uint32_t>(count));
    sum += count;
  }
  if (sum == 0) Refuse(arguments, column, "all counts are 0");
  if (sum > most) Refuse(arguments, column, "the sum of the counts is beyond " + Float2Str(most));
  return counts;
}

ClassTable TableOf(const TableColumn& column, const GroupedArguments& arguments) {
  const std::string& lower = arguments.lower.text;
  if (arguments.has_counts)
    return {ClassBounds(lower, arguments.width.text), CountsOf(column, arguments)};
  const ColumnNumbers& numbers = column.numbers;
  const OrderFigures order = ExtremesOf(numbers);
  if (!std::isfinite(order.maximum - order.minimum))
    Refuse(arguments, column, "the range of the values is beyond that of extended precision");
  const std::string width =
      arguments.width.text.empty() ? UsualWidth(numbers) : arguments.width.text;
  const ClassBounds bounds =
      lower.empty() ? ClassBounds(numbers, width) : ClassBounds(lower, width);
  const Extended minimum = numbers.ValueOf(order.minimum);
  if (minimum < bounds[0] && !lower.empty()) {
    Refuse(arguments, column,
           Float2Str(minimum) + " is below the first class, which begins at " + lower);
  }
  const Extended classes = (numbers.ValueOf(order.maximum) - bounds[0]) / bounds.Width();
  if (!(classes < kMostClasses)) {
    Refuse(arguments, column,
           "classes of width " + width + " are more than " + Int2EStr(kMostClasses) +
               "; --width chooses another width");
  }
  return {bounds, CountsIn(bounds, numbers)};
}

std::string JsonOf(const TableColumn& column, const ResultTable& classes,
                   const std::vector<Figure>& figures, const GroupedArguments& arguments) {
  JsonWriter json;
  json.BeginObject();
  json.Key("file");
  json.String(arguments.table.file);
  WriteColumnKeys(json, column.number, column.name);
  json.Key("population");
  json.Bool(arguments.population);
  json.Key("classes");
  WriteRows(json, classes);
  WriteFigures(json, figures);
  json.EndObject();
  return json.TakeText();
}

std::string OutputOf(const TableColumn& column, const ClassTable& table,
                     const GroupedArguments& arguments) {
  const ResultTable classes = RowsOf(table);
  std::vector<Figure> figures = GroupedFigures(table, arguments.population);
  if (arguments.output.IsJson() || column.missing > 0) {
    figures.insert(figures.begin() + 1,
                   {"missing", "Missing Values:", std::uint64_t{column.missing}});
  }
  if (arguments.output.IsJson()) return JsonOf(column, classes, figures, arguments);
  const FigureFormat format =
      arguments.output.ForReport(arguments.has_counts ? 0 : SignificantDigits(column.numbers));
  switch (arguments.output.form) {
    case OutputForm::kCsv:
      return CsvOf(classes, format);
    case OutputForm::kTable:
      return AlignedTextOf(classes, format);
    default:
      return TabbedTextOf(classes, format) + '\n' + LinesOf(figures, format);
  }
}

void Group(const GroupedArguments& arguments) {
  const std::vector<TableColumn> columns = arguments.table.Read();
  if (columns.size() > 1) {
    throw InputError(
        InputFault::kNoSuchColumn, InputName(arguments.table.file),
        "there are " + Int2EStr(columns.size()) + " columns; --column, or --counts, chooses one");
  }
  const TableColumn& column = columns[0];
  const std::string output = OutputOf(column, TableOf(column, arguments), arguments);
  const bool has_figures = arguments.output.IsJson() || arguments.output.form == OutputForm::kText;
  if (!has_figures && column.missing > 0) {
    WriteRemark(OnOneLine(InputName(arguments.table.file)) + ": " + column.Title() + ": left out " +
                Cardinal(column.missing, "missing value"));
  }
  WriteResult(output);
}

}  // namespace

void AddGrouped(CLI::App& program) {
  CLI::App& command =
      *program.add_subcommand("grouped", "Tables of classes of equal width, and their figures");
  const auto arguments = std::make_shared<GroupedArguments>();
  arguments->table.AddTo(command, "Default: the only column");
  CLI::Option& lower =
      AddWrittenNumber(command, "--lower",
                       "The lower bound of the first class. Default: the multiple of the width at\n"
                       "or below the minimum",
                       NumberKind::kReal, arguments->lower);
  CLI::Option& width =
      AddWrittenNumber(command, "--width",
                       "The width of the classes. Default: a round number near the range over\n"
                       "1 + log2 n",
                       NumberKind::kPositive, arguments->width);
  command
      .add_option_function<std::string>(
          "--counts",
          [arguments](const std::string& column) {
            arguments->table.selection.columns = {column};
            arguments->has_counts = true;
          },
          "The column of the numbers of values in the classes, which follow one another;\n"
          "none may be missing")
      ->type_name("NAME|N")
      ->needs(&lower)
      ->needs(&width)
      ->excludes(command.get_option("--column"));
  command.add_flag("--population", arguments->population,
                   "The values are the whole population: divide by n, not by n - 1");
  arguments->output.AddTo(command);
  command.footer(TableHelp() + kHelp + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Group(*arguments); });
}

}  // namespace qorvex::apps
