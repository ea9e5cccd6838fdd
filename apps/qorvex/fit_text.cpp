#include <algorithm>
#include <cmath>

#include "apps/qorvex/fit_output.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

// The significant digits of the column that has the most.
int DigitsOf(const FitColumns& columns) {
  int digits = SignificantDigits(columns.y.numbers);
  for (const TableColumn& x : columns.x) digits = std::max(digits, SignificantDigits(x.numbers));
  return digits;
}

ReportPart FiguresOf(const FitColumns& columns, const FittedModel& model,
                     const FitArguments& arguments) {
  const LinearFit& fit = model.fit;
  ReportPart part{.key = "fit"};
  std::vector<Figure>& figures = part.figures;
  figures = {{"count", ReportText(rsDSNoOfValues), std::uint64_t{fit.Count()}}};
  if (columns.y.missing > 0)
    figures.push_back({"missing", "Missing Values:", std::uint64_t{columns.y.missing}});
  if (model.pairs) {
    const PairFigures& pairs = *model.pairs;
    figures.push_back({"mean_x", ReportText(rsDSMeanX), pairs.mean_x});
    figures.push_back({"mean_y", ReportText(rsDSMeanY), pairs.mean_y});
    figures.push_back({"standard_deviation_x", ReportText(rsDSStdDevX), pairs.std_dev_x});
    figures.push_back({"standard_deviation_y", ReportText(rsDSStdDevY), pairs.std_dev_y});
    figures.push_back({"covariance", ReportText(rsDSCovar), pairs.covariance});
  }
  const bool is_line = arguments.curve->IsPolynomial() && arguments.degree == 1;
  figures.push_back(
      {"formula", is_line ? ReportText(rsDSRegressionLine) : arguments.curve->label,
       Formula(model.terms, fit.Values(), arguments.HasIntercept(), FormatOf(columns, arguments))});
  figures.push_back({"sum_of_squared_errors", ReportText(rsDSSSE), fit.ResidualSumOfSquares()});
  if (model.pairs)
    figures.push_back({"correlation", ReportText(rsDSCoeffCor), model.pairs->correlation});
  figures.push_back({"determination", ReportText(rsDSCoeffDet), fit.Determination()});
  figures.push_back({"adjusted_determination", "Adjusted R Squared:", fit.AdjustedDetermination()});
  figures.push_back(
      {"residual_standard_deviation", "Residual Standard Deviation:", fit.ResidualStdDev()});
  figures.push_back(
      {"degrees_of_freedom", "Degrees of Freedom:", std::uint64_t{fit.DegreesOfFreedom()}});
  figures.push_back({"confidence", ReportText(rsDSConfidence), arguments.confidence});
  return part;
}

ReportPart CoefficientsOf(const FittedModel& model, const FitArguments& arguments) {
  ReportPart part{.key = "coefficient",
                  .table = {.columns = {{"term", "Term"},
                                        {"coefficient", "Estimate"},
                                        {"standard_error", "Standard Error"},
                                        {"t", "t"},
                                        {"p", "P-Value"},
                                        {"lower", "Lower"},
                                        {"upper", "Upper"}}}};
  for (std::size_t i = 0; i < model.fit.Size(); ++i) {
    const FittedCoefficient of = model.fit.Coefficient(i);
    const auto [least, greatest] = model.fit.ConfidenceInterval(i, arguments.confidence.value);
    part.table.rows.push_back({model.terms[i], of.value, of.standard_error, of.t,
                               Probability{of.p, of.log_p}, least, greatest});
  }
  return part;
}

// The names of the predictors, or their values, with commas between them.
template <class Range, class TextOfOne>
std::string Joined(const Range& range, TextOfOne text_of_one) {
  std::string text;
  for (const auto& one : range) text += (text.empty() ? "" : ", ") + text_of_one(one);
  return text;
}

ReportPart PredictionsOf(const FitColumns& columns, const FittedModel& model,
                         const FitArguments& arguments) {
  const std::string predictors =
      arguments.curve->IsPolynomial()
          ? "x"
          : Joined(columns.x, [](const TableColumn& x) { return x.Title(); });
  ReportPart part{.key = "prediction",
                  .table = {.columns = {{"x", predictors},
                                        {"fitted", "Fitted"},
                                        {"standard_error", "Standard Error"},
                                        {"lower", "Lower"},
                                        {"upper", "Upper"},
                                        {"lower_for_one_value", "Lower for One Value"},
                                        {"upper_for_one_value", "Upper for One Value"}}}};
  for (std::size_t i = 0; i < model.predictions.size(); ++i) {
    const Prediction& at = model.predictions[i];
    part.table.rows.push_back({Joined(arguments.places[i], Float2Str), at.value, at.standard_error,
                               at.confidence.least, at.confidence.greatest, at.prediction.least,
                               at.prediction.greatest});
  }
  return part;
}

ReportPart AnovaOf(const FittedModel& model) {
  const RegressionAnova anova = model.fit.Anova();
  ReportPart part{.key = "anova",
                  .table = {.columns = {{"source", "Source"},
                                        {"degrees_of_freedom", "Degrees of Freedom"},
                                        {"sum_of_squares", "Sum of Squares"},
                                        {"mean_square", "Mean Square"},
                                        {"f", "F"},
                                        {"p", "P-Value"}}}};
  const auto add = [&part](const std::string& name, const AnovaTest& row) {
    part.table.rows.push_back({name, std::uint64_t{row.degrees_of_freedom}, row.sum_of_squares,
                               row.mean_square, row.f, Probability{row.p, row.log_p}});
  };
  add("Regression", anova.regression);
  const std::size_t constants = model.fit.Size() - anova.terms.size();
  if (anova.terms.size() > 1) {
    for (std::size_t i = 0; i < anova.terms.size(); ++i)
      add("  " + model.terms[constants + i], anova.terms[i]);
  }
  const AnovaRow& residual = anova.residual;
  const AnovaRow& total = anova.total;
  part.table.rows.push_back({"Residual",
                             std::uint64_t{residual.degrees_of_freedom},
                             residual.sum_of_squares,
                             residual.mean_square,
                             {},
                             {}});
  part.table.rows.push_back(
      {"Total", std::uint64_t{total.degrees_of_freedom}, total.sum_of_squares, {}, {}, {}});
  return part;
}

}  // namespace

std::string Formula(const std::vector<std::string>& terms, const TQorFloatVector& coefficients,
                    Intercept intercept, const FigureFormat& format) {
  std::string text;
  for (std::size_t i = 0; i < coefficients.size(); ++i) {
    const Extended coefficient = coefficients[i];
    if (i == 0) {
      text = format.Text(coefficient);
    } else {
      text += std::signbit(coefficient) ? " - " : " + ";
      text += format.Text(std::fabs(coefficient));
    }
    const bool is_constant = i == 0 && intercept == Intercept::kIncluded;
    if (!is_constant) text += ' ' + terms[i];
  }
  return text;
}

FigureFormat FormatOf(const FitColumns& columns, const FitArguments& arguments) {
  return arguments.output.ForReport(DigitsOf(columns));
}

std::string PrintedOf(const std::vector<ReportPart>& parts, const FitColumns& columns,
                      const FitArguments& arguments) {
  const OutputFormat& output = arguments.output;
  return output.form == OutputForm::kCsv ? CsvOf(parts, output.ForReport())
                                         : TextOf(parts, output, DigitsOf(columns));
}

std::vector<ReportPart> PartsOf(const FitColumns& columns, const FittedModel& model,
                                const FitArguments& arguments) {
  std::vector<ReportPart> parts{FiguresOf(columns, model, arguments),
                                CoefficientsOf(model, arguments)};
  if (!model.predictions.empty()) parts.push_back(PredictionsOf(columns, model, arguments));
  parts.push_back(AnovaOf(model));
  return parts;
}

}  // namespace qorvex::apps
