#include <memory>
#include <string>
#include <vector>

#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/describe_options.h"
#include "apps/qorvex/describe_output.h"
#include "apps/qorvex/describe_report.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex describe speeds.csv --column speed
  qorvex describe speeds.csv --column 3 --column 4 --decimals 2
  qorvex describe speeds.csv --column speed --quantiles 0.05,0.95 --confidence 0.99
  qorvex describe invoices.csv --column price --weights quantity --currency
  grep -v '^#' speeds.csv | qorvex describe - --json --skip-empty)";

// What a report on a column needs is released before the next one is made.
std::string TextOf(std::vector<TableColumn>& columns, const TableColumn* weights,
                   const DescribeOptions& options) {
  std::string text;
  for (TableColumn& column : columns) {
    const ColumnReport report = ReportOn(column, weights, options);
    if (!text.empty()) text += '\n';
    text += TextOf(report, options);
    RemarkOnZeros(report, options);
  }
  return text;
}

std::string JsonOf(std::vector<TableColumn>& columns, const TableColumn* weights,
                   const DescribeOptions& options) {
  JsonWriter json;
  json.BeginObject();
  WriteHeading(json, options, weights);
  json.Key("columns");
  json.BeginArray();
  for (TableColumn& column : columns) {
    const ColumnReport report = ReportOn(column, weights, options);
    WriteReport(json, report, options);
    RemarkOnZeros(report, options);
  }
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

void Describe(const DescribeOptions& options) {
  options.RequireConsistent();
  std::vector<TableColumn> columns = options.table.Read();
  TableColumn weights;
  const bool has_weights = options.table.selection.weights.has_value();
  if (has_weights) {
    weights = columns.back();
    columns.pop_back();
  }
  const TableColumn* const used_weights = has_weights ? &weights : nullptr;
  WriteResult(options.json ? JsonOf(columns, used_weights, options)
                           : TextOf(columns, used_weights, options));
}

}  // namespace

void AddDescribe(CLI::App& program) {
  CLI::App& command =
      *program.add_subcommand("describe", "The descriptive statistics of columns of numbers");
  const auto options = std::make_shared<DescribeOptions>();
  options->AddTo(command);
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([options] { Describe(*options); });
}

}  // namespace qorvex::apps
