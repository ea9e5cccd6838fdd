#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/currency_text.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/vector/QorvexFinVector.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex describe speeds.csv --column speed
  qorvex describe speeds.csv --column 3 --column 4 --decimals 2
  qorvex describe invoices.csv --column total --currency
  grep -v '^#' speeds.csv | qorvex describe - --json --skip-empty)";

constexpr int kDefaultDecimals = 4;

struct DescribeArguments {
  TableArguments table;
  bool population = false;
  std::optional<int> decimals;
  bool json = false;
};

// The figures of a column of amounts that are amounts themselves.
using ExactFigures = std::map<ReportTextId, Currency>;

// Holds the sum of any column, so that the order of the amounts does not matter.
__extension__ typedef __int128 Int128;

ExactFigures ExactFiguresOf(const TableColumn& column, const DescribeArguments& arguments) {
  const auto amount = [&](Int128 parts, const char* figure) {
    const auto stored = static_cast<std::int64_t>(parts);
    if (stored != parts) {
      throw InputError(InputFault::kOutOfRange, InputName(arguments.table.file),
                       column.Title() + ": the amounts are too large; their " + figure +
                           " is beyond the range of amounts");
    }
    return Currency(stored);
  };
  Int128 sum = 0;
  for (const std::int64_t term : column.numbers.Integers()) sum += term;
  const Currency maximum(MaxVector(column.numbers.Integers()));
  const Currency minimum(MinVector(column.numbers.Integers()));
  return {{rsDSMaximum, maximum},
          {rsDSMinimum, minimum},
          {rsDSRange, amount(Int128{maximum.stored()} - minimum.stored(), "range")},
          {rsDSSum, amount(sum, "sum")}};
}

bool AllFinite(const DescriptiveResults& results) {
  const Extended range = results.maximum - results.minimum;
  return std::ranges::all_of(std::array{results.sum, results.sum_sq, results.variance, results.skew,
                                        results.kurtosis, results.median, range},
                             [](Extended figure) { return std::isfinite(figure); });
}

struct ColumnFigures {
  DescriptiveStats statistics;
  // Empty unless the values are amounts.
  ExactFigures exact;
};

// Computes the figures of a column, whose values move into them. Figures that overflow are refused
// rather than printed as infinities, because further figures computed from these mean nothing.
ColumnFigures FiguresOf(TableColumn& column, const DescribeArguments& arguments) {
  ColumnFigures figures;
  if (arguments.table.selection.currency) figures.exact = ExactFiguresOf(column, arguments);
  DescriptiveStats& statistics = figures.statistics;
  statistics.SetPopulation(arguments.population);
  statistics.SetValues(column.numbers.TakeValues());
  if (!AllFinite(statistics.Results())) {
    throw InputError(InputFault::kOutOfRange, InputName(arguments.table.file),
                     column.Title() +
                         ": the values are too large; their statistics are beyond the range of "
                         "extended precision");
  }
  return figures;
}

std::string TextReport(const TableColumn& column, ColumnFigures& figures, int decimals) {
  std::string text = "Column " + Int2EStr(column.number);
  if (!column.name.empty()) text += ": " + OnOneLine(column.name);
  text += '\n';
  for (const ReportFigure& figure : figures.statistics.Figures()) {
    const auto amount = figures.exact.find(figure.label);
    const bool is_exact = amount != figures.exact.end();
    text += ReportLine(figure, is_exact ? Currency2EStr(amount->second) : figure.Text(decimals));
    text += '\n';
  }
  return text;
}

void RemarkOnHiddenFigures(const TableColumn& column, const ColumnFigures& figures, int decimals,
                           const std::string& file) {
  DescriptiveResults results = figures.statistics.Results();
  // Amounts are printed with all their decimals.
  if (!figures.exact.empty()) results.maximum = results.minimum = results.sum = 0;
  const HiddenFigures hidden = HiddenBy(results, figures.statistics.NoOfValues(), decimals);
  if (hidden.count == 0) return;
  const std::string enough = hidden.enough_decimals <= kMostDecimals
                                 ? "--decimals " + Int2EStr(hidden.enough_decimals) + " or "
                                 : "";
  WriteRemark(OnOneLine(InputName(file)) + ": " + column.Title() + ": " +
              Cardinal(hidden.count, "figure") + (hidden.count == 1 ? " is" : " are") +
              " too small for " + Cardinal(static_cast<std::size_t>(decimals), "decimal") + "; " +
              enough + "--json shows all");
}

// The keys of the figures in a JSON document, in their order.
constexpr std::pair<const char*, ReportTextId> kJsonFigures[] = {
    {"sum", rsDSSum},
    {"sum_of_squares", rsDSSumSQ},
    {"mean", rsDSMean},
    {"variance", rsDSVariance},
    {"standard_deviation", rsDSStdDev},
    {"skewness", rsDSSkew},
    {"excess_kurtosis", rsDSKurtosis},
    {"minimum", rsDSMinimum},
    {"first_quartile", rsDSQtr1},
    {"median", rsDSMedian},
    {"third_quartile", rsDSQtr3},
    {"maximum", rsDSMaximum},
    {"range", rsDSRange},
    {"interquartile_range", rsDSIQR},
    {"mode", rsDSMode},
};

void WriteJson(JsonWriter& json, const TableColumn& column, ColumnFigures figures) {
  std::map<ReportTextId, std::optional<Extended>> values;
  for (const ReportFigure& figure : figures.statistics.Figures())
    values.emplace(figure.label, figure.value);
  json.BeginObject();
  json.Key("column");
  json.Integer(column.number);
  json.Key("name");
  json.StringOrNull(column.name);
  json.Key("count");
  json.Integer(figures.statistics.NoOfValues());
  json.Key("skipped");
  json.Integer(column.skipped);
  for (const auto& [key, id] : kJsonFigures) {
    json.Key(key);
    const auto amount = figures.exact.find(id);
    if (amount != figures.exact.end()) {
      json.Amount(amount->second);
    } else {
      // A figure that does not exist has another label.
      json.Number(values[id]);
    }
  }
  json.EndObject();
}

// The sorted copy of each column is released before the next one is made.
std::string TextOf(std::vector<TableColumn>& columns, const DescribeArguments& arguments) {
  std::string text;
  for (TableColumn& column : columns) {
    ColumnFigures figures = FiguresOf(column, arguments);
    if (!text.empty()) text += '\n';
    const int decimals = arguments.decimals.value_or(kDefaultDecimals);
    text += TextReport(column, figures, decimals);
    RemarkOnHiddenFigures(column, figures, decimals, arguments.table.file);
  }
  return text;
}

std::string JsonOf(std::vector<TableColumn>& columns, const DescribeArguments& arguments) {
  JsonWriter json;
  json.BeginObject();
  json.Key("file");
  json.String(arguments.table.file);
  json.Key("population");
  json.Bool(arguments.population);
  json.Key("columns");
  json.BeginArray();
  for (TableColumn& column : columns) {
    WriteJson(json, column, FiguresOf(column, arguments));
  }
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

void Describe(const DescribeArguments& arguments) {
  std::vector<TableColumn> columns = arguments.table.Read();
  WriteResult(arguments.json ? JsonOf(columns, arguments) : TextOf(columns, arguments));
}

}  // namespace

void AddDescribe(CLI::App& program) {
  CLI::App& command =
      *program.add_subcommand("describe", "The descriptive statistics of columns of numbers");
  const auto arguments = std::make_shared<DescribeArguments>();
  arguments->table.AddTo(command);
  command.add_flag("--population", arguments->population,
                   "The values are the whole population: divide by n, not by n - 1");
  command.add_flag("--currency", arguments->table.selection.currency,
                   "The values are amounts of money with at most four decimals: sum, minimum,\n"
                   "maximum and range are exact, always with four decimals");
  AddDecimals(command, arguments->decimals,
              "Decimals of the report. Default: " + Int2EStr(kDefaultDecimals));
  command.add_flag("--json", arguments->json,
                   "One JSON document; each figure is the shortest text that keeps all 80 bits,\n"
                   "or null if it does not exist");
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Describe(*arguments); });
}

}  // namespace qorvex::apps
