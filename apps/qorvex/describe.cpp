#include <algorithm>
#include <cstddef>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "apps/common/threads.h"
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

// Calls write(report) for each column in turn. As many reports are made at once as there are
// threads; what they need is released before the next ones.
template <class Write>
void ForEachReport(std::vector<TableColumn>& columns, const TableColumn* weights,
                   const DescribeOptions& options, Write write) {
  for (std::size_t first = 0; first < columns.size(); first += options.threads) {
    const std::size_t count = std::min<std::size_t>(options.threads, columns.size() - first);
    const auto threads_for_each = static_cast<unsigned>(options.threads / count);
    std::vector<ColumnReport> reports(count);
    std::vector<std::exception_ptr> faults(count);
    ForEachIndex(count, options.threads, [&](std::size_t i) {
      try {
        reports[i] = ReportOn(columns[first + i], weights, options, threads_for_each);
      } catch (...) {
        faults[i] = std::current_exception();
      }
    });
    for (std::size_t i = 0; i < count; ++i) {
      if (faults[i]) std::rethrow_exception(faults[i]);
      write(reports[i]);
      RemarkOnZeros(reports[i], options);
    }
  }
}

std::string OutputOf(std::vector<TableColumn>& columns, const TableColumn* weights,
                     const DescribeOptions& options) {
  if (options.output.form == OutputForm::kText) {
    std::string text;
    ForEachReport(columns, weights, options, [&](const ColumnReport& report) {
      if (!text.empty()) text += '\n';
      text += TextOf(report, options);
    });
    return text;
  }
  if (!options.output.IsJson()) {
    std::vector<ColumnReport> reports;
    ForEachReport(columns, weights, options,
                  [&](const ColumnReport& report) { reports.push_back(report); });
    return TableOf(reports, options);
  }
  JsonWriter json;
  json.BeginObject();
  WriteHeading(json, options, weights);
  json.Key("columns");
  json.BeginArray();
  ForEachReport(columns, weights, options,
                [&](const ColumnReport& report) { WriteReport(json, report, options); });
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

void Describe(const DescribeOptions& options) {
  options.RequireConsistent();
  std::vector<TableColumn> columns = options.table.Read(options.threads);
  TableColumn weights;
  const bool has_weights = options.table.selection.weights.has_value();
  if (has_weights) {
    weights = columns.back();
    columns.pop_back();
  }
  WriteResult(OutputOf(columns, has_weights ? &weights : nullptr, options));
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
