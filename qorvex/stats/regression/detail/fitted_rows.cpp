#include "qorvex/stats/regression/detail/fitted_rows.h"

#include <algorithm>

#include "qorvex/base/errors.h"

namespace qorvex::regression {

using exact::BigInteger;
using exact::Dyadic;
using exact::Rational;

FittedRows::FittedRows(const Solution& solution, const Columns& predictors, std::size_t count)
    : solution_(solution), count_(count) {
  const ModelForm& form = solution.form;
  if (predictors.Size() != form.Predictors()) RaiseMathError(rsSameDimensions);
  buffers_.resize(predictors.Size());
  for (std::size_t c = 0; c < predictors.Size(); ++c) {
    if (predictors[c].Size() != count_) RaiseMathError(rsSameDimensions);
    columns_.push_back(predictors[c].Read(0, count_, buffers_[c]));
  }

  // Coefficients are for the integers of the data that were fitted, whose decimals these rows need
  // not share.
  std::vector<int> surplus;
  for (std::size_t i = 0; i < solution.Size(); ++i) {
    const std::size_t term = i - form.Constants();
    const bool is_constant = i < form.Constants();
    const int decimals = is_constant ? 0
                         : form.is_polynomial
                             ? static_cast<int>(term + 1) * predictors[0].Decimals()
                             : predictors[term].Decimals();
    surplus.push_back(solution.decimals[i] - decimals);
  }
  const int least = surplus.empty() ? 0 : std::ranges::min(surplus);
  for (const int decimals : surplus)
    scales_.emplace_back(BigInteger::PowerOfTen(static_cast<unsigned>(decimals - least)));
  fitted_unit_ = Rational::PowerOfTen(least - solution.decimals.back()) / solution.determinant;
  leverage_unit_ =
      Rational::PowerOfTen(2 * least + solution.weight_decimals) / solution.determinant;
}

std::vector<Dyadic> FittedRows::Row(std::size_t i) const {
  std::vector<Dyadic> row;
  if (solution_.form.intercept == Intercept::kIncluded) row.emplace_back(1);
  if (solution_.form.is_polynomial) {
    const Dyadic x(columns_[0][i]);
    Dyadic power = 1;
    for (std::size_t k = 0; k < solution_.form.terms; ++k) row.push_back(power *= x);
  } else {
    for (const std::span<const Extended> column : columns_) row.emplace_back(column[i]);
  }
  for (std::size_t k = 0; k < row.size(); ++k) row[k] *= scales_[k];
  return row;
}

Rational FittedRows::Fitted(std::span<const Dyadic> row) const {
  Dyadic sum;
  for (std::size_t k = 0; k < row.size(); ++k) sum += solution_.coefficients[k] * row[k];
  return sum * fitted_unit_;
}

Rational FittedRows::Leverage(std::span<const Dyadic> row) const {
  Dyadic sum;
  for (std::size_t i = 0; i < row.size(); ++i) {
    Dyadic of_row;
    for (std::size_t j = i + 1; j < row.size(); ++j) of_row += solution_.inverse[i][j - i] * row[j];
    sum += row[i] * (of_row.Shifted(1) + solution_.inverse[i].front() * row[i]);
  }
  return sum * leverage_unit_;
}

}  // namespace qorvex::regression
