#include "qorvex/stats/regression/linear_fit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/figures.h"
#include "qorvex/stats/distributions/student_t.h"
#include "qorvex/stats/regression/detail/figures.h"
#include "qorvex/stats/regression/detail/fitted_rows.h"
#include "qorvex/stats/regression/detail/solution.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex {

using exact::Rational;

namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();

// The quantile of Student's t that bounds a two-sided interval of the given probability; NaN
// without degrees of freedom, and for a probability of NaN.
Extended TwoSidedQuantile(Extended confidence, std::size_t degrees_of_freedom) {
  distributions::RequireProbability(confidence);
  if (degrees_of_freedom == 0 || std::isnan(confidence)) return kNaN;
  const StudentTDistribution distribution(static_cast<Extended>(degrees_of_freedom));
  return UpperQuantile(distribution, (1 - confidence) / 2);
}

std::size_t RowsOf(const Columns& columns) {
  return columns.Size() == 0 ? 0 : columns[0].Size();
}

Interval<Extended> About(Extended centre, Extended half_width) {
  return {centre - half_width, centre + half_width};
}

}  // namespace

LinearFit::LinearFit(std::shared_ptr<const regression::Solution> solution)
    : solution_(std::move(solution)) {}

std::size_t LinearFit::Count() const {
  return solution_->rows;
}

std::size_t LinearFit::Size() const {
  return solution_->Size();
}

std::size_t LinearFit::DegreesOfFreedom() const {
  return Count() - Size();
}

Extended LinearFit::ConditionBits() const {
  return solution_->condition_bits;
}

std::size_t LinearFit::Precision() const {
  return solution_->precision;
}

void LinearFit::RequireIndex(std::size_t i) const {
  if (i >= Size()) RaiseMathError(rsInvalidCol);
}

FittedCoefficient LinearFit::Coefficient(std::size_t i) const {
  RequireIndex(i);
  const std::size_t df = DegreesOfFreedom();
  const Rational value = solution_->Coefficient(i);
  FittedCoefficient result{value.Round(), kNaN, kNaN, kNaN, kNaN};
  if (df == 0) return result;
  const Rational variance = solution_->Variance() * solution_->Inverse(i, i);
  result.standard_error = variance.RoundRoot();
  const auto [t, p, log_p] = regression::StudentSignificance(value, variance, df);
  result.t = t;
  result.p = p;
  result.log_p = log_p;
  return result;
}

std::vector<FittedCoefficient> LinearFit::Coefficients() const {
  std::vector<FittedCoefficient> all;
  for (std::size_t i = 0; i < Size(); ++i) all.push_back(Coefficient(i));
  return all;
}

TQorFloatVector LinearFit::Values() const {
  TQorFloatVector values;
  for (std::size_t i = 0; i < Size(); ++i) values.Append(solution_->Coefficient(i).Round());
  return values;
}

Interval<Extended> LinearFit::ConfidenceInterval(std::size_t i, Extended confidence) const {
  RequireIndex(i);
  const Extended quantile = TwoSidedQuantile(confidence, DegreesOfFreedom());
  const FittedCoefficient coefficient = Coefficient(i);
  return About(coefficient.value, quantile * coefficient.standard_error);
}

Extended LinearFit::Covariance(std::size_t i, std::size_t j) const {
  RequireIndex(std::max(i, j));
  if (DegreesOfFreedom() == 0) return kNaN;
  return (solution_->Variance() * solution_->Inverse(i, j)).Round();
}

Extended LinearFit::ResidualSumOfSquares() const {
  return solution_->Residual().Round();
}

Extended LinearFit::TotalSumOfSquares() const {
  return solution_->Total().Round();
}

Extended LinearFit::ResidualVariance() const {
  return DegreesOfFreedom() == 0 ? kNaN : solution_->Variance().Round();
}

Extended LinearFit::ResidualStdDev() const {
  return DegreesOfFreedom() == 0 ? kNaN : solution_->Variance().RoundRoot();
}

Extended LinearFit::Determination() const {
  return regression::RoundRatio(solution_->Total() - solution_->Residual(), solution_->Total());
}

Extended LinearFit::AdjustedDetermination() const {
  if (DegreesOfFreedom() == 0) return kNaN;
  const Rational total = solution_->Total() / (Count() - solution_->form.Constants());
  return regression::RoundRatio(total - solution_->Variance(), total);
}

RegressionAnova LinearFit::Anova() const {
  const std::size_t constants = solution_->form.Constants();
  const std::size_t df = DegreesOfFreedom();
  const Rational residual = solution_->Residual();
  const auto explained = [&](std::size_t first, std::size_t last) {
    return regression::TestOf(solution_->ResidualAfter(first) - solution_->ResidualAfter(last),
                              last - first, residual, df);
  };
  RegressionAnova table{.regression = explained(constants, Size()),
                        .residual = regression::RowOf(residual, df),
                        .total = regression::RowOf(solution_->Total(), Count() - constants),
                        .terms = {}};
  for (std::size_t k = constants; k < Size(); ++k) table.terms.push_back(explained(k, k + 1));
  return table;
}

Prediction LinearFit::Predict(VectorView<Extended> predictors, Extended confidence) const {
  const Extended quantile = TwoSidedQuantile(confidence, DegreesOfFreedom());
  std::vector<ColumnView> columns;
  for (const Extended& value : predictors) columns.emplace_back(std::span(&value, 1));
  const regression::FittedRows rows(*solution_, columns, 1);
  const std::vector<exact::Dyadic> row = rows.Row(0);
  Prediction result{.value = rows.Fitted(row).Round(),
                    .standard_error = kNaN,
                    .confidence = {kNaN, kNaN},
                    .prediction = {kNaN, kNaN}};
  if (DegreesOfFreedom() == 0) return result;
  const Rational leverage = rows.Leverage(row);
  const Rational variance = solution_->Variance();
  result.standard_error = (variance * leverage).RoundRoot();
  result.confidence = About(result.value, quantile * result.standard_error);
  result.prediction = About(result.value, quantile * (variance * (leverage + 1)).RoundRoot());
  return result;
}

TQorFloatVector LinearFit::FittedValues(const Columns& predictors) const {
  const regression::FittedRows rows(*solution_, predictors, RowsOf(predictors));
  TQorFloatVector fitted;
  for (std::size_t i = 0; i < rows.Count(); ++i) fitted.Append(rows.Fitted(rows.Row(i)).Round());
  return fitted;
}

TQorFloatVector LinearFit::Residuals(const Columns& predictors, const ColumnView& response) const {
  const regression::FittedRows rows(*solution_, predictors, response.Size());
  std::vector<Extended> buffer;
  const std::span<const Extended> y = response.Read(0, response.Size(), buffer);
  const Rational unit = Rational::PowerOfTen(-response.Decimals());
  TQorFloatVector residuals;
  for (std::size_t i = 0; i < rows.Count(); ++i)
    residuals.Append((y[i] * unit - rows.Fitted(rows.Row(i))).Round());
  return residuals;
}

TQorFloatVector LinearFit::Leverages(const Columns& predictors) const {
  const regression::FittedRows rows(*solution_, predictors, RowsOf(predictors));
  TQorFloatVector leverages;
  for (std::size_t i = 0; i < rows.Count(); ++i)
    leverages.Append(rows.Leverage(rows.Row(i)).Round());
  return leverages;
}

TQorFloatVector LinearFit::Leverages(const Columns& predictors, const ColumnView& weights) const {
  const regression::FittedRows rows(*solution_, predictors, weights.Size());
  std::vector<Extended> buffer;
  const std::span<const Extended> w = weights.Read(0, weights.Size(), buffer);
  const Rational unit = Rational::PowerOfTen(-weights.Decimals());
  TQorFloatVector leverages;
  for (const Extended weight : w) QorvexVector::detail::RequireWeight(weight);
  for (std::size_t i = 0; i < rows.Count(); ++i)
    leverages.Append(w[i] == 0 ? 0 : (w[i] * unit * rows.Leverage(rows.Row(i))).Round());
  return leverages;
}

}  // namespace qorvex
