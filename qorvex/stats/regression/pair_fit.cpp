#include "qorvex/stats/regression/pair_fit.h"

#include <limits>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/regression/linear_model.h"

namespace qorvex {

using exact::Dyadic;
using exact::Rational;

namespace {

// n sum(u v) - sum(u) sum(v) for two columns of a model with an intercept, and its scale.
Rational Comoment(const GramMatrix& gram, std::size_t u, std::size_t v) {
  const Dyadic moment = gram.Sum(0, 0) * gram.Sum(u, v) - gram.Sum(0, u) * gram.Sum(0, v);
  return moment * Rational::PowerOfTen(-gram.Decimals(u) - gram.Decimals(v));
}

Rational MeanOf(const GramMatrix& gram, std::size_t u) {
  return Rational(gram.Sum(0, u), gram.Sum(0, 0)) * Rational::PowerOfTen(-gram.Decimals(u));
}

Extended Correlation(const Rational& of_x, const Rational& of_y, const Rational& of_both) {
  if (of_y.Sign() == 0) return std::numeric_limits<Extended>::quiet_NaN();
  const Extended magnitude = (of_both * of_both / (of_x * of_y)).RoundRoot();
  return of_both.Sign() < 0 ? -magnitude : magnitude;
}

}  // namespace

PairFit FitPairs(const ColumnView& x_values, const ColumnView& y_values, std::size_t degree) {
  if (degree == 0) RaiseMathError(rsValueGZero);
  LinearModel model = LinearModel::Polynomial(degree);
  model.Add(x_values, y_values);
  const GramMatrix& gram = model.Gram();
  const std::size_t x = 1;
  const std::size_t y = degree + 1;
  LinearFit curve = model.Fit();
  const Rational of_x = Comoment(gram, x, x);
  const Rational of_y = Comoment(gram, y, y);
  const Rational of_both = Comoment(gram, x, y);
  const Rational pairs = Rational(model.Count()) * (model.Count() - 1);
  return {.mean_x = MeanOf(gram, x).Round(),
          .mean_y = MeanOf(gram, y).Round(),
          .std_dev_x = (of_x / pairs).RoundRoot(),
          .std_dev_y = (of_y / pairs).RoundRoot(),
          .covariance = (of_both / pairs).Round(),
          .correlation = Correlation(of_x, of_y, of_both),
          .curve = std::move(curve)};
}

}  // namespace qorvex
