#include "apps/qorvex/fit_output.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/json_writer.h"

namespace qorvex::apps {

namespace {

void WriteColumn(JsonWriter& json, const TableColumn& column) {
  json.BeginObject();
  WriteColumnKeys(json, column.number, column.name);
  json.EndObject();
}

class FitJson {
 public:
  FitJson(const FitColumns& columns, const FittedModel& model, const FitArguments& arguments)
      : columns_(columns), model_(model), fit_(model.fit), arguments_(arguments) {}

  [[nodiscard]] std::string Take() {
    json_.BeginObject();
    WriteHead(json_, columns_, fit_.Count(), arguments_);
    AddFigures();
    AddTerms();
    AddPredictions();
    AddAnova();
    json_.EndObject();
    return json_.TakeText();
  }

 private:
  void Figure(const char* key, std::optional<Extended> value) {
    json_.Key(key);
    json_.Number(value);
  }
  void Count(const char* key, std::size_t value) {
    json_.Key(key);
    json_.Integer(value);
  }
  void Ends(const char* key, const Interval<Extended>& interval) {
    json_.Key(key);
    WriteInterval(json_, interval);
  }

  void AddFigures() {
    const auto of_pairs = [this](Extended PairFigures::*figure) {
      return model_.pairs ? std::optional((*model_.pairs).*figure) : std::nullopt;
    };
    if (arguments_.curve->IsPolynomial()) {
      Figure("mean_x", of_pairs(&PairFigures::mean_x));
      Figure("mean_y", of_pairs(&PairFigures::mean_y));
      Figure("standard_deviation_x", of_pairs(&PairFigures::std_dev_x));
      Figure("standard_deviation_y", of_pairs(&PairFigures::std_dev_y));
      Figure("covariance", of_pairs(&PairFigures::covariance));
    }
    json_.Key("coefficients");
    json_.Numbers(fit_.Values());
    Figure("sum_of_squared_errors", fit_.ResidualSumOfSquares());
    if (arguments_.curve->IsPolynomial())
      Figure("correlation", of_pairs(&PairFigures::correlation));
    Figure("determination", fit_.Determination());
    Figure("adjusted_determination", fit_.AdjustedDetermination());
    Figure("residual_standard_deviation", fit_.ResidualStdDev());
    Count("degrees_of_freedom", fit_.DegreesOfFreedom());
    Figure("condition_bits", fit_.ConditionBits());
    Figure("confidence", arguments_.confidence.value);
  }

  void AddTerms() {
    json_.Key("terms");
    json_.BeginArray();
    for (std::size_t i = 0; i < fit_.Size(); ++i) {
      const FittedCoefficient of = fit_.Coefficient(i);
      json_.BeginObject();
      json_.Key("term");
      json_.String(model_.terms[i]);
      Figure("coefficient", of.value);
      Figure("standard_error", of.standard_error);
      Figure("t", of.t);
      Figure("p", of.p);
      Figure("log_p", of.log_p);
      Ends("interval", fit_.ConfidenceInterval(i, arguments_.confidence.value));
      json_.EndObject();
    }
    json_.EndArray();
  }

  void AddPredictions() {
    json_.Key("predictions");
    json_.BeginArray();
    for (std::size_t i = 0; i < model_.predictions.size(); ++i) {
      const Prediction& at = model_.predictions[i];
      json_.BeginObject();
      json_.Key("x");
      json_.Numbers(arguments_.places[i]);
      Figure("fitted", at.value);
      Figure("standard_error", at.standard_error);
      Ends("interval", at.confidence);
      Ends("interval_for_one_value", at.prediction);
      json_.EndObject();
    }
    json_.EndArray();
  }

  void Source(const AnovaRow& row) {
    Count("degrees_of_freedom", row.degrees_of_freedom);
    Figure("sum_of_squares", row.sum_of_squares);
    Figure("mean_square", row.mean_square);
  }
  void Test(const AnovaTest& row) {
    Source(row);
    Figure("f", row.f);
    Figure("p", row.p);
    Figure("log_p", row.log_p);
  }

  void AddAnova() {
    const RegressionAnova anova = fit_.Anova();
    json_.Key("anova");
    json_.BeginObject();
    json_.Key("regression");
    json_.BeginObject();
    Test(anova.regression);
    json_.EndObject();
    json_.Key("terms");
    json_.BeginArray();
    const std::size_t constants = fit_.Size() - anova.terms.size();
    for (std::size_t i = 0; i < anova.terms.size(); ++i) {
      json_.BeginObject();
      json_.Key("term");
      json_.String(model_.terms[constants + i]);
      Test(anova.terms[i]);
      json_.EndObject();
    }
    json_.EndArray();
    json_.Key("residual");
    json_.BeginObject();
    Source(anova.residual);
    json_.EndObject();
    json_.Key("total");
    json_.BeginObject();
    Source(anova.total);
    json_.EndObject();
    json_.EndObject();
  }

  const FitColumns& columns_;
  const FittedModel& model_;
  const LinearFit& fit_;
  const FitArguments& arguments_;
  JsonWriter json_;
};

}  // namespace

void WriteHead(JsonWriter& json, const FitColumns& columns, std::size_t count,
               const FitArguments& arguments) {
  json.Key("file");
  json.String(arguments.table.file);
  json.Key("classic");
  json.Bool(arguments.classic);
  json.Key("x");
  if (arguments.curve->IsPolynomial()) {
    WriteColumn(json, columns.x[0]);
  } else {
    json.BeginArray();
    for (const TableColumn& x : columns.x) WriteColumn(json, x);
    json.EndArray();
  }
  json.Key("y");
  WriteColumn(json, columns.y);
  json.Key("weights");
  if (columns.weights) {
    WriteColumn(json, *columns.weights);
  } else {
    json.Null();
  }
  json.Key("count");
  json.Integer(count);
  json.Key("missing");
  json.Integer(columns.y.missing);
}

std::string JsonOf(const FitColumns& columns, const FittedModel& model,
                   const FitArguments& arguments) {
  return FitJson(columns, model, arguments).Take();
}

}  // namespace qorvex::apps
