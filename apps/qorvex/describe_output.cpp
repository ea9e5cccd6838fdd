#include "apps/qorvex/describe_output.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

void AddIntervals(std::vector<Figure>& figures, const ColumnReport& report) {
  constexpr Extended none = std::numeric_limits<Extended>::quiet_NaN();
  const ColumnIntervals ends =
      report.intervals.value_or(ColumnIntervals{{none, none}, {none, none}, {none, none}});
  figures.push_back({"mean_interval", ReportText(rsDSConfidenceIntervalM), ends.mean});
  figures.push_back({"variance_interval", ReportText(rsDSConfidenceIntervalV), ends.variance});
  figures.push_back({"standard_deviation_interval",
                     "Confidence Interval for the Standard Deviation: ", ends.std_dev});
}

UnderflowedFigures UnderflowedIn(const ColumnReport& report, const DescribeOptions& options) {
  UnderflowedFigures underflowed;
  if (options.ReportsSquares()) underflowed.CheckLines(report.lines);
  if (report.intervals) {
    const auto& [mean, variance, std_dev] = *report.intervals;
    underflowed.Check(variance.least, std_dev.least);
    underflowed.Check(variance.greatest, std_dev.greatest);
  }
  return underflowed;
}

// The chosen figures in their order, of which that of the deciles is nine.
std::vector<Figure> Chosen(const std::vector<Figure>& figures,
                           const std::vector<const FigureName*>& names) {
  std::vector<Figure> chosen;
  for (const FigureName* const name : names) {
    std::ranges::copy_if(figures, std::back_inserter(chosen), [name](const Figure& figure) {
      return figure.key == name->key ||
             (name->key == "deciles" && figure.key.starts_with("decile_"));
    });
  }
  return chosen;
}

}  // namespace

std::vector<Figure> FiguresOf(const ColumnReport& report, const DescribeOptions& options) {
  std::vector<Figure> figures = FiguresOf(report.lines, report.amounts);
  figures.insert(figures.begin() + 1,
                 {"missing", "Missing Values:", std::uint64_t{report.missing}});
  figures.insert(figures.end(), report.further.begin(), report.further.end());
  if (!options.figures.empty()) figures = Chosen(figures, options.figures);
  if (report.sum_of_weights && options.HasReliabilities())
    figures.push_back({"sum_of_weights", "Sum of Weights:", *report.sum_of_weights});
  for (std::size_t i = 0; i < report.quantiles.size(); ++i) {
    const std::string& probability = options.quantiles[i].text;
    figures.push_back(
        {"quantile_" + probability, "Quantile " + probability + ':', report.quantiles[i]});
  }
  if (options.HasConfidence()) {
    figures.push_back({"confidence", ReportText(rsDSConfidence), options.confidence});
    AddIntervals(figures, report);
  }
  return figures;
}

std::string TextOf(const ColumnReport& report, const DescribeOptions& options) {
  std::string text = "Column " + Int2EStr(report.number);
  if (!report.name.empty()) text += ": " + OnOneLine(report.name);
  for (const GroupLabel& group : report.groups) text += ", " + OnOneLine(group.Text());
  std::vector<Figure> figures = FiguresOf(report, options);
  if (report.missing == 0 && options.figures.empty())
    std::erase_if(figures, [](const Figure& figure) { return figure.key == "missing"; });
  return text + '\n' + LinesOf(figures, options.output.ForReport(report.significant_digits));
}

void RemarkOnZeros(const ColumnReport& report, const DescribeOptions& options) {
  std::string place =
      OnOneLine(InputName(options.table.file)) + ": " + ColumnTitle(report.number, report.name);
  for (const GroupLabel& group : report.groups) place += ", " + OnOneLine(group.Text());
  place += ": ";
  const UnderflowedFigures underflowed = UnderflowedIn(report, options);
  if (underflowed.count > 0) WriteRemark(place + underflowed.Remark());
  if (options.output.CanHideFigures())
    RemarkOnHidden(place, FiguresOf(report, options), options.output);
}

void WriteHeading(JsonWriter& json, const DescribeOptions& options, const TableColumn& weights,
                  std::span<const TableColumn> labels) {
  json.Key("file");
  json.String(options.table.file);
  json.Key("population");
  json.Bool(options.population);
  json.Key("classic");
  json.Bool(options.classic);
  if (options.HasWeights()) {
    json.Key("weights");
    json.BeginObject();
    WriteColumnKeys(json, weights.number, weights.name);
    json.Key("kind");
    json.String(options.HasReliabilities() ? "reliability" : "frequency");
    json.EndObject();
  }
  if (!labels.empty()) {
    json.Key("by");
    json.BeginArray();
    for (const TableColumn& column : labels) {
      json.BeginObject();
      WriteColumnKeys(json, column.number, column.name);
      json.EndObject();
    }
    json.EndArray();
    json.Key("left_out");
    json.Integer(labels[0].missing);
  }
  if (!options.quantiles.empty()) {
    json.Key("quantile_type");
    json.Integer(static_cast<int>(options.TypeOfQuantiles()));
  }
}

void WriteReport(JsonWriter& json, const ColumnReport& report, const DescribeOptions& options) {
  json.BeginObject();
  WriteColumnKeys(json, report.number, report.name);
  if (!report.groups.empty()) {
    json.Key("group");
    json.BeginObject();
    for (const GroupLabel& group : report.groups) {
      json.Key(group.column);
      json.String(group.label);
    }
    json.EndObject();
  }
  WriteFigures(json, FiguresOf(report, options));
  json.EndObject();
}

namespace {

// A row for each report: column, name, labels, figures.
ResultTable RowsOf(const std::vector<ColumnReport>& reports, const DescribeOptions& options) {
  ResultTable table;
  for (const ColumnReport& report : reports) {
    const std::vector<Figure> figures = FiguresOf(report, options);
    if (table.columns.empty()) {
      table.columns = {{"column", ""}, {"name", ""}};
      for (const GroupLabel& group : report.groups)
        table.columns.push_back({group.column, group.column});
      for (const Figure& figure : figures)
        table.columns.push_back({figure.key, Heading(figure.label)});
    }
    std::vector<Cell>& row = table.rows.emplace_back();
    row = {std::uint64_t{report.number}, report.name};
    for (const GroupLabel& group : report.groups) row.emplace_back(group.label);
    for (const Figure& figure : figures) row.push_back(figure.value);
  }
  return table;
}

}  // namespace

std::string TableOf(const std::vector<ColumnReport>& reports, const DescribeOptions& options) {
  int digits = 0;
  for (const ColumnReport& report : reports) digits = std::max(digits, report.significant_digits);
  ResultTable table = RowsOf(reports, options);
  if (options.output.form == OutputForm::kCsv) return Printed(table, options.output, digits);
  // A column is known by its name, or else by its number.
  for (std::vector<Cell>& row : table.rows) {
    if (std::get<std::string>(row[1]).empty()) row[1] = CellText(row[0], {});
    row.erase(row.begin());
  }
  table.columns.erase(table.columns.begin());
  return Printed(options.HasGroups() ? table : Transposed(table), options.output, digits);
}

}  // namespace qorvex::apps
