#include "apps/qorvex/figures.h"

#include <algorithm>
#include <limits>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

// The key of a line, the label of its figure, and the labels of the lines in its place if it does
// not exist.
struct Line {
  const char* key;
  ReportTextId label;
  std::vector<ReportTextId> reasons = {};
};

const std::vector<Line>& Lines() {
  static const std::vector<Line> lines{
      {"count", rsDSNoOfValues},
      {"maximum", rsDSMaximum},
      {"minimum", rsDSMinimum},
      {"range", rsDSRange},
      {"sum", rsDSSum},
      {"sum_of_squares", rsDSSumSQ},
      {"mean", rsDSMean},
      {"mode", rsDSMode, {rsDSNoMode}},
      {"median", rsDSMedian},
      {"variance", rsDSVariance, {rsDSNEVariance}},
      {"standard_deviation", rsDSStdDev, {rsDSNEStdDev}},
      {"excess_kurtosis", rsDSKurtosis, {rsDSNEKurtosis, rsDSSDKurtosis}},
      {"skewness", rsDSSkew, {rsDSNESkew, rsDSSDSkew}},
      {"first_quartile", rsDSQtr1},
      {"third_quartile", rsDSQtr3},
      {"interquartile_range", rsDSIQR},
  };
  return lines;
}

const Line& LineOf(ReportTextId label) {
  return *std::ranges::find_if(Lines(), [label](const Line& line) {
    return line.label == label || std::ranges::count(line.reasons, label) > 0;
  });
}

Cell ValueOf(const ReportFigure& figure, const std::map<ReportTextId, Currency>& amounts) {
  const auto amount = amounts.find(figure.label);
  if (amount != amounts.end()) return amount->second;
  if (!figure.value) return std::numeric_limits<Extended>::quiet_NaN();
  if (figure.label == rsDSNoOfValues) return static_cast<std::uint64_t>(*figure.value);
  return *figure.value;
}

}  // namespace

std::vector<Figure> FiguresOf(const std::vector<ReportFigure>& lines,
                              const std::map<ReportTextId, Currency>& amounts) {
  std::vector<Figure> figures;
  for (const ReportFigure& figure : lines) {
    const Line& line = LineOf(figure.label);
    figures.push_back({line.key, ReportText(line.label), ValueOf(figure, amounts),
                       figure.value ? "" : ReportText(figure.label)});
  }
  return figures;
}

std::string Heading(std::string label) {
  label.erase(label.find_last_not_of(": ") + 1);
  return label;
}

std::string LinesOf(const std::vector<Figure>& figures, const FigureFormat& format) {
  std::string text;
  for (const Figure& figure : figures) {
    text += figure.line.empty() ? figure.label + '\t' + OnOneLine(CellText(figure.value, format))
                                : figure.line;
    text += '\n';
  }
  return text;
}

void WriteFigures(JsonWriter& json, const std::vector<Figure>& figures) {
  for (const Figure& figure : figures) {
    json.Key(figure.key);
    WriteCell(json, figure.value);
  }
}

void RemarkOnHidden(const std::string& place, const std::vector<Figure>& figures,
                    const OutputFormat& output) {
  if (!output.CanHideFigures()) return;
  std::vector<Extended> numbers;
  for (const Figure& figure : figures) {
    if (const auto* const number = std::get_if<Extended>(&figure.value)) {
      numbers.push_back(*number);
    } else if (const auto* const ends = std::get_if<Interval<Extended>>(&figure.value)) {
      numbers.insert(numbers.end(), {ends->least, ends->greatest});
    }
  }
  const HiddenFigures hidden = HiddenAmong(numbers, *output.decimals);
  if (hidden.count > 0) WriteRemark(place + hidden.Remark(*output.decimals, kMostDigits));
}

}  // namespace qorvex::apps
