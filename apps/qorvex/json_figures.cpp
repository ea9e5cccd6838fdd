#include "apps/qorvex/json_figures.h"

#include <utility>

namespace qorvex::apps {

namespace {

// In their order.
constexpr std::pair<const char*, ReportTextId> kFigures[] = {
    {"sum", rsDSSum},
    {"sum_of_squares", rsDSSumSQ},
    {"mean", rsDSMean},
    {"variance", rsDSVariance},
    {"standard_deviation", rsDSStdDev},
    {"skewness", rsDSSkew},
    {"excess_kurtosis", rsDSKurtosis},
    {"minimum", rsDSMinimum},
    {"first_quartile", rsDSQtr1},
    {"median", rsDSMedian},
    {"third_quartile", rsDSQtr3},
    {"maximum", rsDSMaximum},
    {"range", rsDSRange},
    {"interquartile_range", rsDSIQR},
    {"mode", rsDSMode},
};

const char* NameOf(TestForm form) {
  switch (form) {
    case TestForm::kExact:
      return "exact";
    case TestForm::kWelch:
      return "welch";
    case TestForm::kNormalApproximation:
      return "normal_approximation";
    case TestForm::kChiSquareApproximation:
      return "chi_square_approximation";
    case TestForm::kLimit:
      return "limit";
  }
  return "";
}

}  // namespace

void WriteFigures(JsonWriter& json, const std::vector<ReportFigure>& lines,
                  const std::map<ReportTextId, Currency>& amounts) {
  // A figure that does not exist has another label.
  std::map<ReportTextId, std::optional<Extended>> values;
  for (const ReportFigure& line : lines) values.emplace(line.label, line.value);
  for (const auto& [key, id] : kFigures) {
    json.Key(key);
    const auto amount = amounts.find(id);
    if (amount != amounts.end()) {
      json.Amount(amount->second);
    } else {
      json.Number(values[id]);
    }
  }
}

void WriteColumnKeys(JsonWriter& json, std::size_t number, const std::string& name) {
  json.Key("column");
  json.Integer(number);
  json.Key("name");
  json.StringOrNull(name);
}

void WriteInterval(JsonWriter& json, const std::optional<Interval<Extended>>& interval) {
  if (!interval) {
    json.Null();
    return;
  }
  json.BeginArray();
  json.Number(interval->least);
  json.Number(interval->greatest);
  json.EndArray();
}

void WriteTestResult(JsonWriter& json, const std::optional<TestResult>& result) {
  const TestResult none;
  const TestResult& test = result ? *result : none;
  json.Key("statistic");
  json.Number(test.statistic);
  json.Key("degrees_of_freedom");
  json.Number(test.degrees_of_freedom);
  json.Key("second_degrees_of_freedom");
  json.Number(test.second_degrees_of_freedom);
  json.Key("p");
  json.Number(test.p);
  json.Key("log_p");
  json.Number(test.log_p);
  json.Key("form");
  json.StringOrNull(result ? NameOf(test.form) : "");
}

}  // namespace qorvex::apps
