#include <cmath>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/fit_output.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

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

void RemarkOnUnderflow(const FittedModel& model, const FitArguments& arguments) {
  const UnderflowedFigures underflowed = UnderflowedIn(model);
  if (underflowed.count > 0)
    WriteRemark(OnOneLine(InputName(arguments.table.file)) + ": " + underflowed.Remark());
}

}  // namespace qorvex::apps
