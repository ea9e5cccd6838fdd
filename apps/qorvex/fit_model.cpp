#include "apps/qorvex/fit_model.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/column_view.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/common/weighted_numbers.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/regression/linear_model.h"

namespace qorvex::apps {

namespace {

[[noreturn]] void Refuse(const FitArguments& arguments, InputFault fault, const std::string& what) {
  throw InputError(fault, InputName(arguments.table.file), what);
}

void RequireWeights(const TableColumn& column, const FitArguments& arguments) {
  const std::optional<WeightFault> fault =
      FaultOf(column.numbers.Values(), WeightKind::kReliability);
  if (fault) {
    Refuse(arguments, InputFault::kNoResult,
           column.Title() + ": the weight " + Float2Str(fault->weight) + ' ' + fault->what);
  }
  const auto is_zero = [](Extended weight) { return weight == 0; };
  if (std::ranges::all_of(column.numbers.Values(), is_zero))
    Refuse(arguments, InputFault::kNoResult, column.Title() + ": all weights are zero");
}

// The distinct x that a polynomial needs.
std::string NeededX(const FitArguments& arguments) {
  const std::string other_than_zero = arguments.no_intercept ? " other than 0" : "";
  const std::size_t needed = arguments.degree + (arguments.no_intercept ? 0 : 1);
  const char* const curve = arguments.degree == 1   ? "a line"
                            : arguments.degree == 2 ? "a parabola"
                                                    : "this polynomial";
  if (needed == 1) return std::string(curve) + " needs an x" + other_than_zero;
  const std::string number = needed == 2 ? "two" : needed == 3 ? "three" : Int2EStr(needed);
  return std::string(curve) + " needs " + number + " different x" + other_than_zero;
}

[[noreturn]] void RefuseTooFewRows(const FitColumns& columns, const FitArguments& arguments) {
  if (arguments.curve->IsPolynomial())
    Refuse(arguments, InputFault::kNoResult, columns.x[0].Title() + ": " + NeededX(arguments));
  const std::size_t coefficients = columns.x.size() + (arguments.no_intercept ? 0 : 1);
  Refuse(arguments, InputFault::kNoResult,
         Cardinal(coefficients, "coefficient") + " need at least as many rows");
}

[[noreturn]] void RefuseCollinear(const FitColumns& columns, std::size_t predictor,
                                  const FitArguments& arguments) {
  if (arguments.curve->IsPolynomial()) RefuseTooFewRows(columns, arguments);
  const std::string title = columns.x[predictor].Title();
  std::string what = " depends linearly on the columns of x before it";
  if (!arguments.no_intercept) what += " and the constant";
  if (predictor == 0) what = arguments.no_intercept ? " holds nothing but 0" : " is constant";
  Refuse(arguments, InputFault::kNoResult, title + what);
}

LinearFit FitRows(const FitColumns& columns, const FitArguments& arguments) {
  LinearModel model = arguments.curve->IsPolynomial()
                          ? LinearModel::Polynomial(arguments.degree, arguments.HasIntercept())
                          : LinearModel(columns.x.size(), arguments.HasIntercept());
  const ColumnView y = ViewOf(columns.y.numbers);
  if (columns.weights) {
    model.AddWeighted(columns.Predictors(), y, ViewOf(columns.weights->numbers));
  } else {
    model.Add(columns.Predictors(), y);
  }
  try {
    return model.Fit();
  } catch (const CollinearityError& error) {
    RefuseCollinear(columns, error.Predictor(), arguments);
  } catch (const EMathError& error) {
    if (error.message_id() != rsVectorTooSmall) throw;
    RefuseTooFewRows(columns, arguments);
  }
}

std::optional<PairFigures> PairsOf(const FitColumns& columns, const FitArguments& arguments) {
  if (!arguments.curve->IsPolynomial() || columns.weights || arguments.no_intercept)
    return std::nullopt;
  const PairFit line = FitPairs(ViewOf(columns.x[0].numbers), ViewOf(columns.y.numbers));
  return PairFigures{.mean_x = line.mean_x,
                     .mean_y = line.mean_y,
                     .std_dev_x = line.std_dev_x,
                     .std_dev_y = line.std_dev_y,
                     .covariance = line.covariance,
                     .correlation = line.correlation};
}

std::vector<std::string> TermsOf(const FitColumns& columns, const FitArguments& arguments) {
  std::vector<std::string> terms;
  if (!arguments.no_intercept) terms.emplace_back("Constant");
  if (arguments.curve->IsPolynomial()) {
    for (std::size_t power = 1; power <= arguments.degree; ++power)
      terms.push_back(power == 1 ? "x" : "x^" + Int2EStr(power));
  } else {
    for (const TableColumn& column : columns.x)
      terms.push_back(column.name.empty() ? column.Title() : OnOneLine(column.name));
  }
  return terms;
}

std::vector<Prediction> PredictionsOf(const LinearFit& fit, const FitColumns& columns,
                                      const FitArguments& arguments) {
  std::vector<Prediction> predictions;
  for (const TQorFloatVector& place : arguments.places) {
    if (place.size() != columns.x.size()) {
      throw CLI::ValidationError(
          "--predict",
          arguments.curve->IsPolynomial()
              ? "takes one number"
              : "takes " + Cardinal(columns.x.size(), "number") + ", one for each --x");
    }
    predictions.push_back(fit.Predict(place, arguments.confidence.value));
  }
  return predictions;
}

bool AllFinite(const FittedModel& model) {
  const auto finite = [](Extended figure) { return std::isfinite(figure); };
  if (model.pairs) {
    const PairFigures& pairs = *model.pairs;
    if (!finite(pairs.mean_x) || !finite(pairs.mean_y) || !finite(pairs.std_dev_x) ||
        !finite(pairs.std_dev_y) || !finite(pairs.covariance)) {
      return false;
    }
  }
  const auto exists = [](const FittedCoefficient& of) {
    return std::isfinite(of.value) && !std::isinf(of.standard_error);
  };
  return std::ranges::all_of(model.fit.Coefficients(), exists) &&
         finite(model.fit.ResidualSumOfSquares()) && finite(model.fit.TotalSumOfSquares()) &&
         std::ranges::all_of(model.predictions, finite, &Prediction::value);
}

}  // namespace

Columns FitColumns::Predictors() const {
  std::vector<ColumnView> views;
  for (const TableColumn& column : x) views.push_back(ViewOf(column.numbers));
  return views;
}

FitColumns ReadColumns(const FitArguments& arguments) {
  TableArguments table = arguments.table;
  table.selection.columns = arguments.x;
  table.selection.columns.push_back(arguments.y);
  if (arguments.weights) table.selection.columns.push_back(*arguments.weights);
  Table all = table.ReadAll();
  const std::vector<TableColumn>& read = all.columns;
  FitColumns columns;
  columns.skipped_rows = std::move(all.skipped_rows);
  columns.y = ColumnOf(read, arguments.y);
  for (const std::string& chosen : arguments.x) {
    const TableColumn& x = ColumnOf(read, chosen);
    if (x.number == columns.y.number)
      Refuse(arguments, InputFault::kNoSuchColumn, "x and y are both " + x.Title());
    columns.x.push_back(x);
  }
  if (arguments.weights) {
    columns.weights = ColumnOf(read, *arguments.weights);
    RequireWeights(*columns.weights, arguments);
  }
  return columns;
}

void RequireDetermined(const FitColumns& columns, const FitArguments& arguments) {
  static_cast<void>(FitRows(columns, arguments));
}

FittedModel FitOf(const FitColumns& columns, const FitArguments& arguments) {
  LinearFit fit = FitRows(columns, arguments);
  std::vector<Prediction> predictions = PredictionsOf(fit, columns, arguments);
  FittedModel model{.fit = std::move(fit),
                    .pairs = PairsOf(columns, arguments),
                    .terms = TermsOf(columns, arguments),
                    .predictions = std::move(predictions)};
  if (!AllFinite(model)) {
    Refuse(arguments, InputFault::kOutOfRange,
           "the values are too large; their figures are beyond the range of extended precision");
  }
  return model;
}

}  // namespace qorvex::apps
