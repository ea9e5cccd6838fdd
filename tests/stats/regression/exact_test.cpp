// Random models against solutions in rational numbers.

#include <numeric>

#include "qorvex/stats/regression/linear_model.h"
#include "qorvex/stats/regression/pair_fit.h"
#include "stats/exact/nearest.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using Rational = boost::multiprecision::cpp_rational;
using Row = std::vector<Rational>;
using testing::Engine;

Extended Nearest(const Rational& exact, bool root = false) {
  return testing::Nearest(numerator(exact), denominator(exact), root);
}

Rational Dot(const Row& a, const Row& b) {
  return std::inner_product(a.begin(), a.end(), b.begin(), Rational());
}

// By Gauss-Jordan elimination.
std::vector<Row> Inverse(std::vector<Row> matrix) {
  const std::size_t n = matrix.size();
  for (std::size_t i = 0; i < n; ++i) {
    matrix[i].resize(2 * n);
    matrix[i][n + i] = 1;
  }
  for (std::size_t k = 0; k < n; ++k) {
    for (std::size_t j = 2 * n; j-- > k;) matrix[k][j] /= matrix[k][k];
    for (std::size_t i = 0; i < n; ++i) {
      if (i == k) continue;
      for (std::size_t j = 2 * n; j-- > k;) matrix[i][j] -= matrix[i][k] * matrix[k][j];
    }
  }
  for (Row& row : matrix) row.erase(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(n));
  return matrix;
}

// A model and its data, as views for the model and in rational numbers.
struct Problem {
  std::size_t predictors;
  std::size_t degree;  // 0 for several predictors
  Intercept intercept;
  bool has_weights;
  bool has_decimals;

  // The predictors, the response, the weights: integers, and these times powers of two.
  std::vector<std::vector<std::int64_t>> integers = {};
  std::vector<std::vector<Extended>> extended = {};
  std::vector<Row> design = {};
  Row response = {};
  Row weights = {};

  void Fill(Engine& engine, std::size_t rows) {
    for (std::size_t c = 0; c < predictors + 2; ++c) {
      auto& whole = integers.emplace_back(rows);
      auto& column = extended.emplace_back(rows);
      for (std::size_t i = 0; i < rows; ++i) {
        whole[i] = static_cast<std::int64_t>(c > predictors ? engine() % 20 : engine());
        if (c <= predictors) whole[i] >>= predictors > 12 ? 54 : engine() % 64;
        column[i] = std::ldexp(static_cast<Extended>(whole[i]), -4 * static_cast<int>(c));
      }
    }
    for (std::size_t i = 0; i < rows; ++i) {
      Row row;
      if (intercept == Intercept::kIncluded) row.emplace_back(1);
      Rational power = 1;
      for (std::size_t k = 0; k < std::max(predictors, degree); ++k)
        row.push_back(degree > 0 ? power *= Value(0, i) : Value(k, i));
      design.push_back(row);
      response.push_back(Value(predictors, i));
      weights.push_back(has_weights ? Value(predictors + 1, i) : 1);
    }
  }

  static constexpr std::int64_t kScales[] = {10, 100, 1000, 10'000, 100'000, 1'000'000};

  // Decimal columns have one to six decimals.
  [[nodiscard]] Rational Value(std::size_t c, std::size_t i) const {
    return Rational(integers[c][i], has_decimals ? kScales[c % 6] : std::int64_t{1} << 4 * c);
  }
  [[nodiscard]] ColumnView View(std::size_t c, std::size_t first, std::size_t count) const {
    if (has_decimals)
      return {std::span(integers[c]).subspan(first, count), static_cast<int>(c % 6) + 1};
    return std::span(extended[c]).subspan(first, count);
  }
  [[nodiscard]] Columns Predictors(std::size_t first, std::size_t count) const {
    std::vector<ColumnView> views;
    for (std::size_t c = 0; c < predictors; ++c) views.push_back(View(c, first, count));
    return views;
  }

  [[nodiscard]] LinearModel Empty() const {
    return degree > 0 ? LinearModel::Polynomial(degree, intercept)
                      : LinearModel(predictors, intercept);
  }
  void AddTo(LinearModel& model, std::size_t first, std::size_t count, bool remove = false) const {
    const Columns x = Predictors(first, count);
    const ColumnView y = View(predictors, first, count);
    const ColumnView w = View(predictors + 1, first, count);
    if (has_weights) {
      remove ? model.RemoveWeighted(x, y, w) : model.AddWeighted(x, y, w);
    } else {
      remove ? model.Remove(x, y) : model.Add(x, y);
    }
  }
};

void ExpectExactFit(const Problem& problem, const LinearFit& fit) {
  const std::size_t n = problem.response.size();
  const std::size_t p = problem.design[0].size();
  std::vector<Row> gram(p, Row(p));
  Row moments(p);
  Rational total;
  for (std::size_t i = 0; i < n; ++i) {
    const Rational& w = problem.weights[i];
    const Rational& y = problem.response[i];
    const Row& x = problem.design[i];
    for (std::size_t j = 0; j < p; ++j) {
      for (std::size_t k = 0; k < p; ++k) gram[j][k] += w * x[j] * x[k];
      moments[j] += w * x[j] * y;
    }
    total += w * y * y;
  }
  const std::size_t constants = problem.intercept == Intercept::kIncluded ? 1 : 0;
  if (constants == 1) total -= moments[0] * moments[0] / gram[0][0];
  const std::vector<Row> inverse = Inverse(gram);
  Row b;
  for (const Row& row : inverse) b.push_back(Dot(row, moments));

  Rational rss;
  const TQorFloatVector fitted = fit.FittedValues(problem.Predictors(0, n));
  const TQorFloatVector residuals =
      fit.Residuals(problem.Predictors(0, n), problem.View(problem.predictors, 0, n));
  const TQorFloatVector leverages =
      problem.has_weights
          ? fit.Leverages(problem.Predictors(0, n), problem.View(problem.predictors + 1, 0, n))
          : fit.Leverages(problem.Predictors(0, n));
  for (std::size_t i = 0; i < n; ++i) {
    const Row& x = problem.design[i];
    const Rational value = Dot(x, b);
    const Rational residual = problem.response[i] - value;
    rss += problem.weights[i] * residual * residual;
    EXPECT_EQ(fitted[i], Nearest(value));
    EXPECT_EQ(residuals[i], Nearest(residual));
    Row product;
    for (const Row& row : inverse) product.push_back(Dot(row, x));
    EXPECT_EQ(leverages[i], Nearest(problem.weights[i] * Dot(product, x)));
  }
  const auto used = n - static_cast<std::size_t>(std::ranges::count(problem.weights, 0));
  ASSERT_EQ(fit.Count(), used);
  const Rational variance = rss / (used - p);
  for (std::size_t j = 0; j < p; ++j) {
    const FittedCoefficient coefficient = fit.Coefficient(j);
    const Rational square = variance * inverse[j][j];
    EXPECT_EQ(coefficient.value, Nearest(b[j]));
    EXPECT_EQ(coefficient.standard_error, Nearest(square, true));
    EXPECT_EQ(std::fabs(coefficient.t), Nearest(b[j] * b[j] / square, true));
    EXPECT_EQ(fit.Covariance(j, 0), Nearest(variance * inverse[j][0]));
  }
  EXPECT_EQ(fit.ResidualSumOfSquares(), Nearest(rss));
  EXPECT_EQ(fit.TotalSumOfSquares(), Nearest(total));
  EXPECT_EQ(fit.ResidualStdDev(), Nearest(variance, true));
  EXPECT_EQ(fit.Determination(), Nearest(1 - rss / total));
  const Rational adjusted = 1 - variance * (used - constants) / total;
  EXPECT_EQ(fit.AdjustedDetermination(), Nearest(adjusted));
  EXPECT_EQ(fit.Anova().regression.f, Nearest((total - rss) / (p - constants) / variance));
}

TEST(LinearModel, RoundsExactResultsOnceWhateverTheOrderOfItsRows) {
  constexpr std::pair<std::size_t, std::size_t> forms[] = {{1, 0}, {2, 0}, {4, 0}, {13, 0},
                                                           {1, 1}, {1, 2}, {1, 4}};
  Engine engine(20);
  for (int i = 0; i < 42; ++i) {
    const auto [predictors, degree] = forms[i % 7];
    Problem problem{.predictors = predictors,
                    .degree = degree,
                    .intercept = i % 5 < 3 ? Intercept::kIncluded : Intercept::kOmitted,
                    .has_weights = i % 4 > 1,
                    .has_decimals = i % 9 > 5};
    const std::size_t n = (i % 10 == 1 ? 60 : 12) + predictors + engine() % 8;
    problem.Fill(engine, n);
    SCOPED_TRACE(i);
    LinearModel model = problem.Empty();
    problem.AddTo(model, 0, n);
    ExpectExactFit(problem, model.Fit());

    LinearModel merged = problem.Empty();
    LinearModel end = problem.Empty();
    problem.AddTo(end, n - 5, 5);
    problem.AddTo(merged, 5, n - 5);
    problem.AddTo(merged, 0, 5);
    problem.AddTo(merged, n - 5, 5, true);
    merged.Merge(end);
    ASSERT_EQ(model.Count(), merged.Count());
    for (std::size_t row = 0; row < model.Gram().Size(); ++row) {
      for (std::size_t column = 0; column < model.Gram().Size(); ++column)
        EXPECT_EQ(model.Gram().Sum(row, column), merged.Gram().Sum(row, column));
    }
  }
}

}  // namespace qorvex
