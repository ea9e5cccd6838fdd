#include "apps/qorvex/compare_output.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "apps/common/hidden_figures.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/report_parts.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

constexpr Extended kNone = std::numeric_limits<Extended>::quiet_NaN();

std::vector<Figure> FiguresOf(const ComparedColumn& compared,
                              const std::vector<ReportFigure>& lines) {
  std::vector<Figure> figures = apps::FiguresOf(lines);
  figures.insert(figures.begin() + 1,
                 {"missing", "Missing Values:", std::uint64_t{compared.column.missing}});
  return figures;
}

ReportPart PartOf(const ComparedColumn& compared, const std::vector<ReportFigure>& lines) {
  return {.key = "column", .item = compared.title, .figures = FiguresOf(compared, lines)};
}

ReportPart DifferenceOf(const ComparisonReport& report, const ComparisonHeading& heading) {
  return {.key = "difference",
          .figures = {
              {"difference",
               heading.paired ? "Mean Difference:" : "Difference of the Means:", report.difference},
              {"confidence", ReportText(rsDSConfidence), heading.confidence},
              {"interval", "Confidence Interval:",
               report.interval.value_or(Interval<Extended>{kNone, kNone})}}};
}

Cell DegreesCell(Extended degrees) {
  if (std::isnan(degrees)) return {};
  if (degrees == std::floor(degrees)) return static_cast<std::uint64_t>(degrees);
  return degrees;
}

ReportPart TestsOf(const ComparisonReport& report) {
  ReportPart part{.key = "test",
                  .table = {.columns = {{"test", "Test"},
                                        {"null_hypothesis", Heading(ReportText(rsNullHypothesis))},
                                        {"symbol", ""},
                                        {"statistic", "Statistic"},
                                        {"degrees_of_freedom", "df"},
                                        {"second_degrees_of_freedom", ""},
                                        {"p", Heading(ReportText(rsPValue))}}}};
  for (const ReportedTest& test : report.tests) {
    const TestResult result = test.result.value_or(TestResult());
    part.table.rows.push_back({test.name, test.null_hypothesis, test.symbol, result.statistic,
                               DegreesCell(result.degrees_of_freedom),
                               DegreesCell(result.second_degrees_of_freedom),
                               Probability{result.p, result.log_p}});
  }
  return part;
}

void WriteColumn(JsonWriter& json, const char* key, const ComparedColumn& compared,
                 const std::vector<ReportFigure>& lines) {
  json.Key(key);
  json.BeginObject();
  json.Key("file");
  json.String(compared.file);
  WriteColumnKeys(json, compared.column.number, compared.column.name);
  WriteFigures(json, FiguresOf(compared, lines));
  json.EndObject();
}

}  // namespace

std::string TextOf(const ComparisonReport& report, const ComparisonHeading& heading,
                   const OutputFormat& output) {
  std::vector<ReportPart> columns{PartOf(heading.first, report.first),
                                  PartOf(heading.second, report.second)};
  std::vector<ReportPart> parts{columns[0], columns[1], DifferenceOf(report, heading),
                                TestsOf(report)};
  RemarkOnHidden("", parts, output);
  if (output.form == OutputForm::kCsv) return CsvOf(parts, output.ForReport());
  if (heading.first.column.missing + heading.second.column.missing == 0) {
    for (ReportPart& column : columns)
      std::erase_if(column.figures, [](const Figure& of) { return of.key == "missing"; });
  }
  parts.erase(parts.begin());
  parts.front() = SideBySide(columns);
  OutputFormat aligned = output;
  aligned.form = OutputForm::kTable;
  const int digits = std::max(SignificantDigits(heading.first.column.numbers),
                              SignificantDigits(heading.second.column.numbers));
  const std::string plots = DrawBoxPlots({report.first_plot, report.second_plot});
  return TextOf(parts, aligned, digits) + (plots.empty() ? "" : '\n' + plots);
}

void RemarkOnUnderflow(const ComparisonReport& report) {
  UnderflowedFigures underflowed;
  underflowed.CheckLines(report.first);
  underflowed.CheckLines(report.second);
  if (underflowed.count > 0) WriteRemark(underflowed.Remark());
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
