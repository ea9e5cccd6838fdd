#include <cmath>

#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_report.h"

namespace qorvex::apps {

namespace {

void Write(JsonWriter& json, const char* key, const std::string& text) {
  json.Key(key);
  json.String(text);
}

void Write(JsonWriter& json, const char* key, Extended figure) {
  json.Key(key);
  json.Number(figure);
}

void Write(JsonWriter& json, const std::vector<TestFigure>& figures) {
  for (const TestFigure& figure : figures) Write(json, figure.key, figure.value);
}

void Write(JsonWriter& json, const TestSample& sample) {
  json.BeginObject();
  if (sample.column != 0) {
    WriteColumnKeys(json, sample.column, sample.name);
    json.Key("group");
    json.StringOrNull(sample.group);
    json.Key("missing");
    json.Integer(sample.missing);
  }
  Write(json, sample.figures);
  json.EndObject();
}

void Write(JsonWriter& json, const TestReport& report, Extended significance) {
  const TestResult& result = report.result;
  json.BeginObject();
  json.Key("samples");
  json.BeginArray();
  for (const TestSample& sample : report.samples) Write(json, sample);
  json.EndArray();
  Write(json, report.figures);
  Write(json, "null_hypothesis", report.null_hypothesis);
  Write(json, "alternate_hypothesis", report.alternate_hypothesis);
  WriteTestResult(json, result);
  json.Key("rejected");
  if (std::isnan(result.p)) {
    json.Null();
  } else {
    json.Bool(result.p <= significance);
  }
  for (const TestInterval& interval : report.intervals) {
    json.Key(interval.key);
    WriteInterval(json, interval.ends);
  }
  json.EndObject();
}

}  // namespace

std::string JsonOf(const std::vector<TestReport>& reports, const std::string& name,
                   const TestArguments& arguments) {
  JsonWriter json;
  json.BeginObject();
  Write(json, "test", name);
  json.Key("file");
  json.StringOrNull(arguments.table.file);
  Write(json, "confidence", arguments.confidence.value);
  Write(json, "significance", arguments.Significance());
  json.Key("results");
  json.BeginArray();
  for (const TestReport& report : reports) Write(json, report, arguments.Significance());
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

}  // namespace qorvex::apps
