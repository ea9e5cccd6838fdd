#include "apps/qorvex/describe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/input_error.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_input.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/descriptive_stats.h"

namespace qorvex::cli {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex describe speeds.csv --column speed
  qorvex describe speeds.csv --column 3 --column 4 --decimals 2
  grep -v '^#' speeds.csv | qorvex describe - --json --skip-empty)";

constexpr int kDefaultDecimals = 4;

struct DescribeArguments {
  TableArguments table;
  bool population = false;
  std::optional<int> decimals;
  bool json = false;
};

bool AllFinite(const DescriptiveResults& results) {
  const Extended range = results.maximum - results.minimum;
  return std::ranges::all_of(std::array{results.sum, results.sum_sq, results.variance, results.skew,
                                        results.kurtosis, results.median, range},
                             [](Extended figure) { return std::isfinite(figure); });
}

// Computes the statistics of a column, whose values move into them. Figures that overflow are
// refused rather than printed as infinities, from which others would follow that mean nothing.
DescriptiveStats StatisticsOf(TableColumn& column, const DescribeArguments& arguments) {
  DescriptiveStats statistics;
  statistics.SetPopulation(arguments.population);
  statistics.SetValues(std::move(column.values));
  if (!AllFinite(statistics.Results())) {
    throw InputError(InputFault::kOutOfRange, InputName(arguments.table.file),
                     column.Title() +
                         ": the values are too large; their statistics are beyond the range of "
                         "extended precision");
  }
  return statistics;
}

std::string TextReport(const TableColumn& column, DescriptiveStats& statistics, int decimals) {
  std::string text = "Column " + Int2EStr(column.number);
  if (!column.name.empty()) text += ": " + OnOneLine(column.name);
  text += '\n';
  for (const std::string& line : statistics.Report(decimals)) text += line + '\n';
  return text;
}

void WriteJson(JsonWriter& json, const TableColumn& column, const DescriptiveStats& statistics) {
  const DescriptiveResults& results = statistics.Results();
  const std::size_t count = statistics.NoOfValues();
  const auto figure = [&](std::string_view key, Extended value, bool exists = true) {
    json.Key(key);
    json.Number(exists ? std::optional(value) : std::nullopt);
  };
  const bool has_variance = count >= 2 || statistics.Population();
  const bool has_skewness = count >= 3 && FloatIsNotZero(results.std_dev);
  const bool has_kurtosis = has_skewness && count >= 4;

  json.BeginObject();
  json.Key("column");
  json.Integer(column.number);
  json.Key("name");
  if (column.name.empty()) {
    json.Null();
  } else {
    json.String(column.name);
  }
  json.Key("count");
  json.Integer(count);
  json.Key("skipped");
  json.Integer(column.skipped);
  figure("sum", results.sum);
  figure("sum_of_squares", results.sum_sq);
  figure("mean", results.mean);
  figure("variance", results.variance, has_variance);
  figure("standard_deviation", results.std_dev, has_variance);
  figure("skewness", results.skew, has_skewness);
  figure("excess_kurtosis", results.kurtosis, has_kurtosis);
  figure("minimum", results.minimum);
  figure("first_quartile", results.quartile_1st);
  figure("median", results.median);
  figure("third_quartile", results.quartile_3rd);
  figure("maximum", results.maximum);
  figure("range", results.maximum - results.minimum);
  figure("interquartile_range", results.inter_quartile_range);
  figure("mode", results.mode, results.mode_exists);
  json.EndObject();
}

// Each column's sorted copy is gone before the next one is made.
std::string TextOf(std::vector<TableColumn>& columns, const DescribeArguments& arguments) {
  std::string text;
  for (TableColumn& column : columns) {
    DescriptiveStats statistics = StatisticsOf(column, arguments);
    if (!text.empty()) text += '\n';
    text += TextReport(column, statistics, arguments.decimals.value_or(kDefaultDecimals));
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
    const DescriptiveStats statistics = StatisticsOf(column, arguments);
    WriteJson(json, column, statistics);
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
  AddDecimals(command, arguments->decimals,
              "Decimals of the report. Default: " + Int2EStr(kDefaultDecimals));
  command.add_flag("--json", arguments->json,
                   "One JSON document; figures in the shortest text that keeps all 80 bits,\n"
                   "null for those that do not exist");
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Describe(*arguments); });
}

}  // namespace qorvex::cli
