#include "apps/qorvex/json_figures.h"

#include <array>
#include <cmath>

namespace qorvex::apps {

namespace {

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

void WriteColumnKeys(JsonWriter& json, std::size_t number, const std::string& name) {
  json.Key("column");
  json.Integer(number);
  json.Key("name");
  json.StringOrNull(name);
}

void WriteInterval(JsonWriter& json, const std::optional<Interval<Extended>>& interval) {
  if (!interval || std::isnan(interval->least)) return json.Null();
  json.Numbers(std::array{interval->least, interval->greatest});
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
