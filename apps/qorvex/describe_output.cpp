#include "apps/qorvex/describe_output.h"

#include <algorithm>

#include "apps/common/cells.h"
#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/currency_text.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

std::uint64_t CountOf(const ColumnReport& report) {
  return static_cast<std::uint64_t>(*report.lines.front().value);
}

HiddenFigures HiddenIn(const ColumnReport& report, int decimals) {
  std::vector<Extended> figures = report.quantiles;
  if (report.intervals) {
    for (const Interval<Extended>& interval :
         {report.intervals->mean, report.intervals->variance, report.intervals->std_dev}) {
      figures.push_back(interval.least);
      figures.push_back(interval.greatest);
    }
  }
  if (report.classic) {
    DescriptiveResults results = *report.classic;
    // Amounts are printed with all their decimals.
    if (!report.amounts.empty()) results.maximum = results.minimum = results.sum = 0;
    const HiddenFigures lines = HiddenBy(results, CountOf(report), decimals);
    const HiddenFigures others = HiddenAmong(figures, decimals);
    return {lines.count + others.count, std::max(lines.enough_decimals, others.enough_decimals)};
  }
  for (const ReportFigure& line : report.lines)
    if (HasUnit(line) && !report.amounts.contains(line.label)) figures.push_back(*line.value);
  return HiddenAmong(figures, decimals);
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

std::string TextOf(const ColumnReport& report, const DescribeOptions& options) {
  const int decimals = options.Decimals();
  std::string text = "Column " + Int2EStr(report.number);
  if (!report.name.empty()) text += ": " + OnOneLine(report.name);
  text += '\n';
  const auto line = [&text](const std::string& label, const std::string& figure) {
    text += label + '\t' + figure + '\n';
  };
  for (const ReportFigure& figure : report.lines) {
    const auto amount = report.amounts.find(figure.label);
    const bool is_amount = amount != report.amounts.end();
    text += ReportLine(figure, is_amount ? Currency2EStr(amount->second) : figure.Text(decimals));
    text += '\n';
  }
  if (options.HasReliabilities())
    line("Sum of Weights:", Float2EStr(*report.sum_of_weights, decimals));
  for (std::size_t i = 0; i < report.quantiles.size(); ++i) {
    line("Quantile " + options.quantiles[i].text + ':', Float2EStr(report.quantiles[i], decimals));
  }
  if (report.intervals) {
    const auto ends = [decimals](const Interval<Extended>& interval) {
      return Float2EStr(interval.least, decimals) + " to " +
             Float2EStr(interval.greatest, decimals);
    };
    line(ReportText(rsDSConfidence), options.confidence.text);
    line(ReportText(rsDSConfidenceIntervalM), ends(report.intervals->mean));
    line(ReportText(rsDSConfidenceIntervalV), ends(report.intervals->variance));
    line("Confidence Interval for the Standard Deviation: ", ends(report.intervals->std_dev));
  }
  return text;
}

void RemarkOnZeros(const ColumnReport& report, const DescribeOptions& options) {
  const std::string place = OnOneLine(InputName(options.table.file)) + ": " +
                            ColumnTitle(report.number, report.name) + ": ";
  const UnderflowedFigures underflowed = UnderflowedIn(report);
  if (underflowed.count > 0) WriteRemark(place + underflowed.Remark());
  if (options.json) return;
  const int decimals = options.Decimals();
  const HiddenFigures hidden = HiddenIn(report, decimals);
  if (hidden.count > 0) WriteRemark(place + hidden.Remark(decimals, kMostDecimals));
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
  if (options.HasConfidence()) {
    json.Key("confidence");
    json.Number(options.confidence.value);
  }
}

void WriteReport(JsonWriter& json, const ColumnReport& report, const DescribeOptions& options) {
  json.BeginObject();
  WriteColumnKeys(json, report.number, report.name);
  json.Key("count");
  json.Integer(CountOf(report));
  json.Key("missing");
  json.Integer(report.missing);
  if (report.sum_of_weights) {
    json.Key("sum_of_weights");
    json.Number(report.sum_of_weights);
  }
  WriteFigures(json, report.lines, report.amounts);
  if (!options.quantiles.empty()) {
    json.Key("quantiles");
    json.BeginArray();
    for (std::size_t i = 0; i < report.quantiles.size(); ++i) {
      json.BeginObject();
      json.Key("probability");
      json.Number(options.quantiles[i].value);
      json.Key("value");
      json.Number(report.quantiles[i]);
      json.EndObject();
    }
    json.EndArray();
  }
  if (options.HasConfidence()) {
    const auto interval = [&](const char* key, Interval<Extended> ColumnIntervals::*of) {
      json.Key(key);
      WriteInterval(json, report.intervals ? std::optional((*report.intervals).*of) : std::nullopt);
    };
    interval("mean_interval", &ColumnIntervals::mean);
    interval("variance_interval", &ColumnIntervals::variance);
    interval("standard_deviation_interval", &ColumnIntervals::std_dev);
  }
  json.EndObject();
}

}  // namespace qorvex::apps
