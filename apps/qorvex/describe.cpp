#include <algorithm>
#include <cstddef>
#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/groups.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/common/threads.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/describe_options.h"
#include "apps/qorvex/describe_output.h"
#include "apps/qorvex/describe_report.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex describe speeds.csv --column speed
  qorvex describe speeds.csv --column 3 --column 4 --decimals 2
  qorvex describe speeds.csv --column speed --quantiles 0.05,0.95 --confidence 0.99
  qorvex describe speeds.csv --column speed --by series --figures n,mean,sd --table
  qorvex describe invoices.csv --column price --weights quantity --currency
  grep -v '^#' speeds.csv | qorvex describe --json --na -)";

// Calls write(report) for each sample in turn. As many reports are made at once as there are
// threads; what they need is released before the next ones.
template <class Write>
void ForEachReport(std::vector<DescribedSample> samples, const DescribeOptions& options,
                   Write write) {
  for (std::size_t first = 0; first < samples.size(); first += options.threads) {
    const std::size_t count = std::min<std::size_t>(options.threads, samples.size() - first);
    const auto threads_for_each = static_cast<unsigned>(options.threads / count);
    std::vector<ColumnReport> reports(count);
    std::vector<std::exception_ptr> faults(count);
    ForEachIndex(count, options.threads, [&](std::size_t i) {
      try {
        reports[i] = ReportOn(samples[first + i], options, threads_for_each);
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

// The columns of a table by what they contain.
struct DescribedTable {
  std::vector<TableColumn> columns;
  TableColumn weights;
  std::vector<TableColumn> labels;
};

DescribedTable ReadColumns(const DescribeOptions& options) {
  DescribedTable table;
  for (TableColumn& column : options.table.Read(options.threads)) {
    switch (column.role) {
      case ColumnRole::kValues:
        table.columns.push_back(std::move(column));
        break;
      case ColumnRole::kWeights:
        table.weights = std::move(column);
        break;
      case ColumnRole::kLabels:
        table.labels.push_back(std::move(column));
    }
  }
  if (options.HasGroups() && table.labels[0].missing > 0) {
    WriteRemark(OnOneLine(InputName(options.table.file)) + ": left out " +
                Cardinal(table.labels[0].missing, "row") + " without a " +
                (options.HasWeights() ? "value, weight or label" : "label"));
  }
  return table;
}

std::vector<GroupLabel> LabelsOf(const std::vector<TableColumn>& columns,
                                 const std::vector<std::string>& labels) {
  std::vector<GroupLabel> group;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const std::string number = Int2EStr(columns[i].number);
    std::string name = columns[i].name;
    if (name.empty()) {
      name = number;
    } else if (std::ranges::count(columns, name, &TableColumn::name) > 1) {
      name += " (" + number + ')';  // a key of JSON only once
    }
    group.push_back({std::move(name), labels[i]});
  }
  return group;
}

// Calls write(report) for each column, or for each group of each column.
template <class Write>
void ForEachReport(DescribedTable table, const DescribeOptions& options, Write write) {
  if (table.labels.empty()) {
    std::vector<DescribedSample> samples;
    for (TableColumn& column : table.columns)
      samples.push_back({std::move(column), table.weights, {}});
    return ForEachReport(std::move(samples), options, write);
  }
  const Groups groups = GroupsOf(table.labels);
  const std::vector<GroupNumbers> weights =
      options.HasWeights() ? Split(table.weights, groups) : std::vector<GroupNumbers>();
  for (TableColumn& column : table.columns) {
    std::vector<GroupNumbers> parts = Split(column, groups);
    column.numbers = {};
    std::vector<DescribedSample> samples;
    for (std::size_t i = 0; i < parts.size(); ++i) {
      DescribedSample& sample = samples.emplace_back();
      sample.column = {.number = column.number,
                       .name = column.name,
                       .numbers = std::move(parts[i].numbers),
                       .missing = parts[i].missing};
      sample.weights = {.number = table.weights.number, .name = table.weights.name};
      if (options.HasWeights()) sample.weights.numbers = weights[i].numbers;
      sample.groups = LabelsOf(table.labels, groups.labels[i]);
    }
    ForEachReport(std::move(samples), options, write);
  }
}

std::string OutputOf(DescribedTable table, const DescribeOptions& options) {
  if (options.output.form == OutputForm::kText) {
    std::string text;
    ForEachReport(std::move(table), options, [&](const ColumnReport& report) {
      if (!text.empty()) text += '\n';
      text += TextOf(report, options);
    });
    return text;
  }
  if (!options.output.IsJson()) {
    std::vector<ColumnReport> reports;
    ForEachReport(std::move(table), options,
                  [&](const ColumnReport& report) { reports.push_back(report); });
    return TableOf(reports, options);
  }
  JsonWriter json;
  json.BeginObject();
  WriteHeading(json, options, table.weights, table.labels);
  json.Key("columns");
  json.BeginArray();
  ForEachReport(std::move(table), options,
                [&](const ColumnReport& report) { WriteReport(json, report, options); });
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

void Describe(const DescribeOptions& options) {
  options.RequireConsistent();
  WriteResult(OutputOf(ReadColumns(options), options));
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
