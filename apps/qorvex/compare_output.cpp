#include "apps/qorvex/compare_output.h"

#include <cmath>
#include <utility>
#include <vector>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/probability_text.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/text_output.h"
#include "apps/qorvex/text_table.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

using Row = std::vector<std::string>;

// As a heading, without colon and blank.
std::string Heading(ReportTextId id) {
  std::string text = ReportText(id);
  text.erase(text.find_last_not_of(": ") + 1);
  return text;
}

// Of the text of a figure in a table.
constexpr std::size_t kWidest = 24;

// In fixed notation, or the shortest text that keeps all bits if that is too wide for the table.
std::string CellText(Extended figure, int decimals) {
  const std::string text = Float2EStr(figure, decimals);
  return text.size() <= kWidest ? text : Float2Str(figure);
}

std::string FigureTable(const ComparisonReport& report, const ComparisonHeading& heading,
                        int decimals) {
  std::vector<Row> rows{{"", ShortName(heading.first.title), ShortName(heading.second.title)}};
  for (std::size_t i = 0; i < report.first.size(); ++i) {
    const ReportFigure& first = report.first[i];
    const ReportFigure& second = report.second[i];
    const auto text = [decimals](const ReportFigure& figure) {
      if (!figure.value) return MessageText(rsNA);
      return figure.label == rsDSNoOfValues ? figure.Text(0) : CellText(*figure.value, decimals);
    };
    if (first.value || second.value) {
      const ReportFigure& existing = first.value ? first : second;
      rows.push_back({ReportText(existing.label), text(first), text(second)});
    } else {
      rows.push_back({ReportText(first.label)});
    }
  }
  return AlignedRows(rows, 1);
}

std::string DifferenceTable(const ComparisonReport& report, const ComparisonHeading& heading,
                            int decimals) {
  const auto number = [decimals](Extended figure) { return CellText(figure, decimals); };
  const std::string interval =
      report.interval ? number(report.interval->least) + " to " + number(report.interval->greatest)
                      : MessageText(rsNA);
  return AlignedRows({{heading.paired ? "Mean Difference:" : "Difference of the Means:",
                       number(report.difference)},
                      {ReportText(rsDSConfidence), heading.confidence.text},
                      {"Confidence Interval:", interval}},
                     2);
}

std::string DegreesText(Extended degrees) {
  if (std::isnan(degrees)) return "";
  return Float2EStr(degrees, degrees == std::floor(degrees) ? 0 : 2);
}

std::string TestTable(const ComparisonReport& report, int decimals) {
  std::vector<Row> rows{
      {Heading(rsNullHypothesis), "Test", Heading(rsTestStatistic), "df", Heading(rsPValue)}};
  for (const ReportedTest& test : report.tests) {
    Row row{test.null_hypothesis, test.name};
    if (test.result) {
      const TestResult& result = *test.result;
      const std::string second = DegreesText(result.second_degrees_of_freedom);
      row.push_back(test.symbol + (" = " + CellText(result.statistic, decimals)));
      row.push_back(DegreesText(result.degrees_of_freedom) + (second.empty() ? "" : ", " + second));
      row.push_back(RoundedProbabilityText(result.p, result.log_p));
    } else {
      row.insert(row.end(), {"", "", MessageText(rsNA)});
    }
    rows.push_back(std::move(row));
  }
  return AlignedRows(rows, 2);
}

void WriteColumn(JsonWriter& json, const char* key, const ComparedColumn& compared,
                 const std::vector<ReportFigure>& lines) {
  json.Key(key);
  json.BeginObject();
  json.Key("file");
  json.String(compared.file);
  WriteColumnKeys(json, compared.column.number, compared.column.name);
  json.Key("count");
  json.Integer(static_cast<std::uint64_t>(*lines.front().value));
  json.Key("missing");
  json.Integer(compared.column.missing);
  WriteFigures(json, lines);
  json.EndObject();
}

}  // namespace

std::string TextOf(const ComparisonReport& report, const ComparisonHeading& heading, int decimals) {
  const std::string plots = DrawBoxPlots({report.first_plot, report.second_plot});
  return FigureTable(report, heading, decimals) + '\n' +
         DifferenceTable(report, heading, decimals) + '\n' + TestTable(report, decimals) +
         (plots.empty() ? "" : '\n' + plots);
}

void RemarkOnUnderflow(const ComparisonReport& report) {
  UnderflowedFigures underflowed;
  underflowed.CheckLines(report.first);
  underflowed.CheckLines(report.second);
  if (underflowed.count > 0) WriteRemark(underflowed.Remark());
}

void RemarkOnHiddenFigures(const ComparisonReport& report, int decimals) {
  // With so many decimals, no figure is printed as zeros.
  if (Float2EStr(0, decimals).size() > kWidest) return;
  std::vector<Extended> figures{report.difference};
  if (report.interval)
    figures.insert(figures.end(), {report.interval->least, report.interval->greatest});
  for (const auto* lines : {&report.first, &report.second})
    for (const ReportFigure& line : *lines)
      if (HasUnit(line)) figures.push_back(*line.value);
  const HiddenFigures hidden = HiddenAmong(figures, decimals);
  if (hidden.count > 0) WriteRemark(hidden.Remark(decimals, kMostDecimals));
}

std::string JsonOf(const ComparisonReport& report, const ComparisonHeading& heading) {
  JsonWriter json;
  json.BeginObject();
  WriteColumn(json, "first", heading.first, report.first);
  WriteColumn(json, "second", heading.second, report.second);
  json.Key("paired");
  json.Bool(heading.paired);
  json.Key("difference");
  json.Number(report.difference);
  json.Key("confidence");
  json.Number(heading.confidence.value);
  json.Key("interval");
  WriteInterval(json, report.interval);
  json.Key("tests");
  json.BeginArray();
  for (const ReportedTest& test : report.tests) {
    json.BeginObject();
    json.Key("test");
    json.String(test.key);
    WriteTestResult(json, test.result);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

}  // namespace qorvex::apps
