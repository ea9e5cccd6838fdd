#include "apps/qorvex/describe_output.h"

#include <algorithm>
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

UnderflowedFigures UnderflowedIn(const ColumnReport& report) {
  UnderflowedFigures underflowed;
  underflowed.CheckLines(report.lines);
  if (report.intervals) {
    const auto& [mean, variance, std_dev] = *report.intervals;
    underflowed.Check(variance.least, std_dev.least);
    underflowed.Check(variance.greatest, std_dev.greatest);
  }
  return underflowed;
}

}  // namespace

std::vector<Figure> FiguresOf(const ColumnReport& report, const DescribeOptions& options) {
  std::vector<Figure> figures = FiguresOf(report.lines, report.amounts);
  figures.insert(figures.begin() + 1,
                 {"missing", "Missing Values:", std::uint64_t{report.skipped}});
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
  std::vector<Figure> figures = FiguresOf(report, options);
  if (report.skipped == 0)
    std::erase_if(figures, [](const Figure& figure) { return figure.key == "missing"; });
  return text + '\n' + LinesOf(figures, options.output.ForReport(report.significant_digits));
}

void RemarkOnZeros(const ColumnReport& report, const DescribeOptions& options) {
  const std::string place = OnOneLine(InputName(options.table.file)) + ": " +
                            ColumnTitle(report.number, report.name) + ": ";
  const UnderflowedFigures underflowed = UnderflowedIn(report);
  if (underflowed.count > 0) WriteRemark(place + underflowed.Remark());
  RemarkOnHidden(place, FiguresOf(report, options), options.output);
}

void WriteHeading(JsonWriter& json, const DescribeOptions& options, const TableColumn* weights) {
  json.Key("file");
  json.String(options.table.file);
  json.Key("population");
  json.Bool(options.population);
  json.Key("classic");
  json.Bool(options.classic);
  if (weights != nullptr) {
    json.Key("weights");
    json.BeginObject();
    WriteColumnKeys(json, weights->number, weights->name);
    json.Key("kind");
    json.String(options.HasReliabilities() ? "reliability" : "frequency");
    json.EndObject();
  }
  if (!options.quantiles.empty()) {
    json.Key("quantile_type");
    json.Integer(static_cast<int>(options.TypeOfQuantiles()));
  }
}

void WriteReport(JsonWriter& json, const ColumnReport& report, const DescribeOptions& options) {
  json.BeginObject();
  WriteColumnKeys(json, report.number, report.name);
  WriteFigures(json, FiguresOf(report, options));
  json.EndObject();
}

std::string TableOf(const std::vector<ColumnReport>& reports, const DescribeOptions& options) {
  ResultTable table;
  int digits = 0;
  for (const ColumnReport& report : reports) {
    digits = std::max(digits, report.significant_digits);
    const std::vector<Figure> figures = FiguresOf(report, options);
    if (table.columns.empty()) {
      table.columns = {{"column", ""}, {"name", ""}};
      for (const Figure& figure : figures)
        table.columns.push_back({figure.key, Heading(figure.label)});
    }
    std::vector<Cell>& row = table.rows.emplace_back();
    row = {std::uint64_t{report.number}, report.name};
    for (const Figure& figure : figures) row.push_back(figure.value);
  }
  if (options.output.form == OutputForm::kCsv) return Printed(table, options.output, digits);
  // A column is known by its name, or else by its number.
  for (std::vector<Cell>& row : table.rows) {
    if (std::get<std::string>(row[1]).empty()) row[1] = CellText(row[0], {});
    row.erase(row.begin());
  }
  table.columns.erase(table.columns.begin());
  return Printed(Transposed(table), options.output, digits);
}

}  // namespace qorvex::apps
