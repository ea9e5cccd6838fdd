#include <cmath>
#include <initializer_list>
#include <utility>

#include "apps/common/probability_text.h"
#include "apps/qorvex/fit_output.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

class FitText {
 public:
  FitText(const FitColumns& columns, const FittedModel& model, const FitArguments& arguments)
      : columns_(columns), model_(model), fit_(model.fit), arguments_(arguments) {}

  [[nodiscard]] std::string Take() {
    AddFigures();
    AddCoefficients();
    if (!model_.predictions.empty()) AddPredictions();
    AddAnova();
    return std::move(text_);
  }

 private:
  [[nodiscard]] std::string Number(Extended figure) const {
    return AvailableText(figure, arguments_.decimals);
  }
  [[nodiscard]] std::string Probability(Extended p, Extended log_p) const {
    return std::isnan(p) ? MessageText(rsNA) : ProbabilityText(p, log_p, arguments_.decimals);
  }

  void Line(std::initializer_list<std::string> cells) {
    for (const std::string& cell : cells) text_ += cell + '\t';
    text_.back() = '\n';
  }

  void AddFigures() {
    Line({ReportText(rsDSNoOfValues), Int2EStr(fit_.Count())});
    if (model_.pairs) {
      Line({ReportText(rsDSMeanX), Number(model_.pairs->mean_x)});
      Line({ReportText(rsDSMeanY), Number(model_.pairs->mean_y)});
      Line({ReportText(rsDSStdDevX), Number(model_.pairs->std_dev_x)});
      Line({ReportText(rsDSStdDevY), Number(model_.pairs->std_dev_y)});
      Line({ReportText(rsDSCovar), Number(model_.pairs->covariance)});
    }
    const bool is_line = arguments_.curve->IsPolynomial() && arguments_.degree == 1;
    Line({is_line ? ReportText(rsDSRegressionLine) : arguments_.curve->label,
          Formula(model_.terms, fit_.Values(), arguments_.HasIntercept(), arguments_.decimals)});
    Line({ReportText(rsDSSSE), Number(fit_.ResidualSumOfSquares())});
    if (model_.pairs) Line({ReportText(rsDSCoeffCor), Number(model_.pairs->correlation)});
    Line({ReportText(rsDSCoeffDet), Number(fit_.Determination())});
    Line({"Adjusted R Squared:", Number(fit_.AdjustedDetermination())});
    Line({"Residual Standard Deviation:", Number(fit_.ResidualStdDev())});
    Line({"Degrees of Freedom:", Int2EStr(fit_.DegreesOfFreedom())});
    Line({ReportText(rsDSConfidence), arguments_.confidence.text});
  }

  void AddCoefficients() {
    text_ += '\n';
    Line({"Term", "Estimate", "Standard Error", "t", "P-Value", "Lower", "Upper"});
    for (std::size_t i = 0; i < fit_.Size(); ++i) {
      const FittedCoefficient of = fit_.Coefficient(i);
      const auto [least, greatest] = fit_.ConfidenceInterval(i, arguments_.confidence.value);
      Line({model_.terms[i], Number(of.value), Number(of.standard_error), Number(of.t),
            Probability(of.p, of.log_p), Number(least), Number(greatest)});
    }
  }

  void AddPredictions() {
    text_ += '\n';
    for (const TableColumn& x : columns_.x)
      text_ += (arguments_.curve->IsPolynomial() ? "x" : x.Title()) + '\t';
    Line({"Fitted", "Standard Error", "Lower", "Upper", "Lower for One Value",
          "Upper for One Value"});
    for (std::size_t i = 0; i < model_.predictions.size(); ++i) {
      const Prediction& at = model_.predictions[i];
      for (const Extended x : arguments_.places[i]) text_ += Number(x) + '\t';
      Line({Number(at.value), Number(at.standard_error), Number(at.confidence.least),
            Number(at.confidence.greatest), Number(at.prediction.least),
            Number(at.prediction.greatest)});
    }
  }

  void AddSource(const std::string& name, const AnovaTest& row) {
    Line({name, Int2EStr(row.degrees_of_freedom), Number(row.sum_of_squares),
          Number(row.mean_square), Number(row.f), Probability(row.p, row.log_p)});
  }

  void AddAnova() {
    const RegressionAnova anova = fit_.Anova();
    text_ += '\n';
    Line({"Source", "Degrees of Freedom", "Sum of Squares", "Mean Square", "F", "P-Value"});
    AddSource("Regression", anova.regression);
    const std::size_t constants = fit_.Size() - anova.terms.size();
    if (anova.terms.size() > 1) {
      for (std::size_t i = 0; i < anova.terms.size(); ++i)
        AddSource("  " + model_.terms[constants + i], anova.terms[i]);
    }
    Line({"Residual", Int2EStr(anova.residual.degrees_of_freedom),
          Number(anova.residual.sum_of_squares), Number(anova.residual.mean_square)});
    Line({"Total", Int2EStr(anova.total.degrees_of_freedom), Number(anova.total.sum_of_squares)});
  }

  const FitColumns& columns_;
  const FittedModel& model_;
  const LinearFit& fit_;
  const FitArguments& arguments_;
  std::string text_;
};

}  // namespace

std::string Formula(const std::vector<std::string>& terms, const TQorFloatVector& coefficients,
                    Intercept intercept, std::optional<int> decimals) {
  std::string text;
  for (std::size_t i = 0; i < coefficients.size(); ++i) {
    const Extended coefficient = coefficients[i];
    if (i == 0) {
      text = FigureText(coefficient, decimals);
    } else {
      text += std::signbit(coefficient) ? " - " : " + ";
      text += FigureText(std::fabs(coefficient), decimals);
    }
    const bool is_constant = i == 0 && intercept == Intercept::kIncluded;
    if (!is_constant) text += ' ' + terms[i];
  }
  return text;
}

std::string TextOf(const FitColumns& columns, const FittedModel& model,
                   const FitArguments& arguments) {
  return FitText(columns, model, arguments).Take();
}

}  // namespace qorvex::apps
