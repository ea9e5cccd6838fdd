#include <cmath>
#include <vector>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/fit_output.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

// The figures that depend on the units of the columns.
std::vector<Extended> FiguresOf(const FittedModel& model, const FitArguments& arguments) {
  const LinearFit& fit = model.fit;
  std::vector<Extended> figures{fit.ResidualStdDev()};
  if (model.pairs) {
    const PairFigures& of = *model.pairs;
    figures.insert(figures.end(),
                   {of.mean_x, of.mean_y, of.std_dev_x, of.std_dev_y, of.covariance});
  }
  for (std::size_t i = 0; i < fit.Size(); ++i) {
    const FittedCoefficient of = fit.Coefficient(i);
    const auto [least, greatest] = fit.ConfidenceInterval(i, arguments.confidence.value);
    figures.insert(figures.end(), {of.value, of.standard_error, least, greatest});
  }
  for (const Prediction& at : model.predictions) {
    figures.insert(figures.end(),
                   {at.value, at.standard_error, at.confidence.least, at.confidence.greatest,
                    at.prediction.least, at.prediction.greatest});
  }
  const RegressionAnova anova = fit.Anova();
  figures.push_back(anova.total.sum_of_squares);
  const auto add = [&figures](const AnovaRow& row) {
    figures.insert(figures.end(), {row.sum_of_squares, row.mean_square});
  };
  add(anova.regression);
  add(anova.residual);
  if (anova.terms.size() > 1)
    for (const AnovaTest& term : anova.terms) add(term);
  return figures;
}

UnderflowedFigures UnderflowedIn(const FittedModel& model) {
  const LinearFit& fit = model.fit;
  UnderflowedFigures underflowed;
  if (model.pairs) underflowed.Check(model.pairs->covariance, model.pairs->correlation);
  for (const FittedCoefficient& of : fit.Coefficients()) {
    underflowed.Check(of.value, of.t);
    underflowed.Check(of.standard_error, fit.ResidualStdDev());
  }
  const auto check = [&](const AnovaRow& row, Extended witness) {
    underflowed.Check(row.sum_of_squares, witness);
    underflowed.Check(row.mean_square, witness);
  };
  const RegressionAnova anova = fit.Anova();
  check(anova.regression, fit.Determination());
  check(anova.residual, fit.ResidualStdDev());
  if (anova.terms.size() > 1)
    for (const AnovaTest& term : anova.terms) check(term, term.f);
  // Without a spread of y, there is no determination.
  underflowed.Check(anova.total.sum_of_squares, std::isnan(fit.Determination()) ? 0 : 1);
  return underflowed;
}

}  // namespace

void RemarkOnSmallFigures(const FittedModel& model, const FitArguments& arguments) {
  const std::string place = OnOneLine(InputName(arguments.table.file)) + ": ";
  if (arguments.decimals && !arguments.json) {
    const HiddenFigures hidden = HiddenAmong(FiguresOf(model, arguments), *arguments.decimals);
    if (hidden.count > 0) WriteRemark(place + hidden.Remark(*arguments.decimals, kMostDecimals));
  }
  const UnderflowedFigures underflowed = UnderflowedIn(model);
  if (underflowed.count > 0) WriteRemark(place + underflowed.Remark());
}

}  // namespace qorvex::apps
