// Errors, degenerate fits, and models that are too long for integers.

#include "qorvex/stats/regression/linear_model.h"

#include "qorvex/stats/regression/pair_fit.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using Column = std::vector<Extended>;

TEST(LinearModel, RefusesBadRowsAndKeepsItsState) {
  const Column x{1, 2, 3, 4};
  const Column y{2, 3, 5, 9};
  const Column nan{1, kNaN, 3, 4};
  LinearModel line;
  line.Add(x, y);
  LinearModel parabola = LinearModel::Polynomial(2);
  EXPECT_MATH_ERROR(line.Add({x, x}, y), rsSameDimensions);
  EXPECT_MATH_ERROR(line.Add({}, y), rsSameDimensions);
  EXPECT_MATH_ERROR(line.Add(x, {1.0L, 2.0L}), rsSameDimensions);
  EXPECT_MATH_ERROR(line.AddWeighted(x, y, {1.0L, 2.0L}), rsSameDimensions);
  EXPECT_MATH_ERROR(line.AddWeighted(nan, y, {1.0L, 1.0L, -1.0L, 1.0L}), rsInvalidWeight);
  EXPECT_MATH_ERROR(line.AddWeighted(x, y, {1.0L, 1.0L, kInfinity, 1.0L}), rsInvalidWeight);
  EXPECT_ERROR(line.Add(nan, y), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(line.Add(x, {1.0L, 2.0L, kInfinity, 0.0L}), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(parabola.Add(nan, y), EInvalidOp, rsInvalidOp);
  EXPECT_MATH_ERROR(line.Remove({{1.0L, 2, 3, 4, 5}}, {1.0L, 2, 3, 4, 5}), rsInvalidValue);
  EXPECT_MATH_ERROR(line.Merge(parabola), rsSameDimensions);
  EXPECT_MATH_ERROR(ColumnView(std::vector<std::int64_t>{1}, -1), rsInvalidValue);
  EXPECT_MATH_ERROR(parabola.Fit(), rsVectorTooSmall);
  EXPECT_EQ(line.Count(), 4U);

  const LinearFit fit = line.Fit();
  EXPECT_EQ(fit.Values()[1], 2.3L);
  EXPECT_MATH_ERROR(fit.Coefficient(2), rsInvalidCol);
  EXPECT_MATH_ERROR(fit.ConfidenceInterval(0, 1), rsValue01);
  EXPECT_MATH_ERROR(fit.Predict({1.0L}, 0), rsValue01);
  EXPECT_TRUE(std::isnan(fit.Predict({1.0L}, kNaN).prediction.least));
  EXPECT_MATH_ERROR(fit.Predict({}), rsSameDimensions);
  EXPECT_ERROR(fit.Predict({kNaN}), EInvalidOp, rsInvalidOp);
  EXPECT_MATH_ERROR(fit.Residuals(x, {1.0L}), rsSameDimensions);
  EXPECT_MATH_ERROR(fit.Leverages(nan, {1.0L, 1.0L, kNaN, 1.0L}), rsInvalidWeight);
  EXPECT_EQ(fit.Leverages({{kNaN, 2}}, {0.0L, 1}), (TQorFloatVector{0, 0.3L}));

  // Rows of weight 0 do not count.
  LinearModel weighted;
  weighted.AddWeighted({{5, 1, 2, kNaN, 3, 4}}, {kNaN, 2, 3, 7, 5, 9}, {0.0L, 1, 1, 0, 1, 1});
  EXPECT_EQ(weighted.Count(), 4U);
  EXPECT_EQ(weighted.Fit().Values(), fit.Values());
}

TEST(LinearModel, NamesThePredictorThatDependsOnOthers) {
  const Column y{1, 4, 2, 8, 5, 7};
  const Column a{1, 2, 3, 4, 5, 7};
  const Column b{0.5L, 3.75L, 2, -9, 4.25L, 1};
  Column sum(6);
  for (std::size_t i = 0; i < 6; ++i) sum[i] = 2 * a[i] - b[i] / 4 + 1;
  const Column zero(6), seven(6, 7), sign{1, -1, 1, 1, -1, -1};
  const auto origin = Intercept::kOmitted;
  std::vector<std::tuple<LinearModel, Columns, std::size_t, MessageId, std::string>> cases{
      {LinearModel(1), seven, 0, rsCollinear, "Predictor 1 depends"},
      {LinearModel(3), {a, a, b}, 1, rsCollinear, "Predictor 2 depends"},
      {LinearModel(3), {a, b, sum}, 2, rsCollinear, "on the intercept and the predictors b"},
      {LinearModel(2, origin), {b, zero}, 1, rsCollinearOrigin, "2 depends linearly on the p"},
      {LinearModel(1, origin), zero, 0, rsCollinearOrigin, "Predictor 1 depends"},
      {LinearModel::Polynomial(2), sign, 1, rsCollinearPower, "x^2 depends"},
      {LinearModel::Polynomial(2, origin), seven, 1, rsCollinearPower, "x^2 depends"}};
  for (auto& [dependent, predictors, index, id, text] : cases) {
    dependent.Add(predictors, y);
    try {
      static_cast<void>(dependent.Fit());
      ADD_FAILURE() << "fits";
    } catch (const CollinearityError& error) {
      EXPECT_EQ(error.Predictor(), index);
      EXPECT_EQ(error.message_id(), id);
      EXPECT_NE(std::string(error.what()).find(text), std::string::npos) << error.what();
    }
  }
  sum[0] *= 1 + 0x1p-63L;  // nearly
  LinearModel model(3);
  model.Add({a, b, sum}, y);
  EXPECT_GT(model.Fit().ConditionBits(), 120);
  EXPECT_MATH_ERROR(FitPairs(a, y, 0), rsValueGZero);
}

TEST(LinearModel, HasInfiniteStatisticsForPerfectFitsAndNoneWithoutDegreesOfFreedom) {
  const LinearFit perfect = FitPairs({1.0L, 2, 3, 4}, {0.5L, 1, 1.5L, 2}).curve;
  EXPECT_EQ(perfect.ResidualStdDev(), 0);
  EXPECT_EQ(perfect.Determination(), 1);
  const FittedCoefficient slope = perfect.Coefficient(1);
  EXPECT_TRUE(slope.t == kInfinity && slope.p == 0 && slope.log_p == -kInfinity);
  EXPECT_TRUE(std::isnan(perfect.Coefficient(0).t));  // 0 / 0
  const AnovaTest whole = perfect.Anova().regression;
  EXPECT_TRUE(whole.f == kInfinity && whole.p == 0);
  EXPECT_EQ(perfect.Predict({10}).prediction.least, 5);

  const LinearFit constant = FitPairs({1.0L, 2, 3}, {4.0L, 4, 4}).curve;
  EXPECT_TRUE(std::isnan(constant.Determination()) && std::isnan(constant.Anova().regression.f));

  const LinearFit fit = FitPairs({1.0L, 2, 4}, {3.0L, 5, 1}, 2).curve;
  EXPECT_EQ(fit.DegreesOfFreedom(), 0U);
  EXPECT_EQ(fit.FittedValues({{2.0L}}), (TQorFloatVector{5}));
  for (const Extended figure :
       {fit.ResidualStdDev(), fit.Coefficient(1).standard_error, fit.Coefficient(1).p,
        fit.AdjustedDetermination(), fit.ConfidenceInterval(0).least, fit.Anova().regression.f,
        fit.Anova().residual.mean_square, fit.Covariance(0, 1),
        fit.Predict({3}).prediction.greatest})
    EXPECT_TRUE(std::isnan(figure));

  LinearModel mean(0);
  mean.Add({}, {1.0L, 2, 6});
  EXPECT_EQ(mean.Fit().Values(), (TQorFloatVector{3}));
  EXPECT_EQ(mean.Fit().Residuals({}, {4.0L}), (TQorFloatVector{1}));
  EXPECT_EQ(mean.Fit().Predict({}).standard_error, 1.527525231651946668863L);
}

TEST(LinearModel, DoesNotDependOnUnits) {
  const Column x{1, 2, 4, 7, 9};
  const Column y{3, 2, 6, 5, 11};
  const auto scaled = [](Column column, int exponent) {
    for (Extended& value : column) value = std::ldexp(value, exponent);
    return column;
  };
  const LinearFit plain = FitPairs(x, y, 2).curve;
  for (const int exponent : {-16000, -3000, 7000}) {
    const PairFit pairs = FitPairs(scaled(x, exponent), scaled(y, -exponent), 2);
    EXPECT_EQ(pairs.correlation, FitPairs(x, y).correlation);
    EXPECT_EQ(pairs.mean_x, std::ldexp(4.6L, exponent));
    EXPECT_EQ(pairs.covariance, FitPairs(x, y).covariance);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(pairs.curve.Coefficient(i).t, plain.Coefficient(i).t);
      EXPECT_EQ(pairs.curve.Coefficient(i).value,
                std::ldexp(plain.Coefficient(i).value, -exponent * static_cast<int>(i + 1)));
    }
  }
}

TEST(LinearModel, MixesDecimalsOfAnyNumber) {
  const std::vector<std::int64_t> tenths{12, 25, 31, 44};
  const std::vector<std::int64_t> hundredths{120, 250, 310, 440};
  const std::vector<std::int16_t> response{3, 1, 4, 1};
  const TQorCurrencyVector amounts{Currency(12000), Currency(25000), Currency(31000),
                                   Currency(44000)};
  for (const std::size_t degree : {1U, 2U}) {
    LinearModel model = LinearModel::Polynomial(degree);
    model.Add(ColumnView(tenths, 1), response);
    LinearModel mixed = model;
    mixed.AddWeighted(ColumnView(hundredths, 2), response, ColumnView(hundredths, 2));
    mixed.RemoveWeighted(ColumnView(hundredths, 2), response, ColumnView(hundredths, 2));
    const LinearFit fit = model.Fit();
    EXPECT_EQ(mixed.Fit().Values(), fit.Values());
    EXPECT_EQ(mixed.Fit().Covariance(0, 1), fit.Covariance(0, 1));
    EXPECT_EQ(mixed.Fit().ResidualVariance(), fit.ResidualVariance());
    // 2.5 and 0.5 are numbers of every kind.
    EXPECT_EQ(fit.Predict({2.5L}).value, fit.FittedValues(ColumnView(tenths, 1))[1]);
    EXPECT_EQ(fit.Leverages({{2.5L}})[0], fit.Leverages(ColumnView(tenths, 1))[1]);
    EXPECT_EQ(fit.FittedValues(amounts), fit.FittedValues(ColumnView(tenths, 1)));
    EXPECT_EQ(fit.Predict(std::vector<float>{2.5F}).value, fit.Predict({2.5L}).value);
    EXPECT_EQ(mixed.Fit().Predict({2.5L}).standard_error, fit.Predict({2.5L}).standard_error);
    LinearModel wrong = model;
    wrong.Remove({{1.0L, 2, 3}}, {9.0L, 9, 9});
    wrong.Add({{1.0L, 1, 1}}, {0.0L, 0, 0});
    EXPECT_ERROR(wrong.Fit(), EInvalidOp, rsInvalidOp);
  }
}

// Long columns are read in blocks, which those of other element types are converted to.
TEST(LinearModel, ReadsLongColumnsOfEveryType) {
  std::vector<std::int32_t> x(40'000);
  std::vector<float> y(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) {
    x[i] = static_cast<std::int32_t>(i);
    y[i] = static_cast<float>(i * i % 97);
  }
  LinearModel model(1);
  model.Add(x, y);
  LinearModel extended(1);
  extended.Add(Column(x.begin(), x.end()), Column(y.begin(), y.end()));
  EXPECT_EQ(model.Fit().Values(), extended.Fit().Values());
  EXPECT_EQ(model.Fit().ResidualVariance(), extended.Fit().ResidualVariance());
}

// Columns of whole numbers that are nearly multiples of each other. Each row is there once for each
// error that is added to its response; these sum to 0, so the coefficients are known.
TEST(LinearModel, FitsManyPredictorsWithAsManyBitsAsTheyNeed) {
  constexpr std::size_t kPredictors = 14;
  testing::Engine engine(3);
  for (const int closeness : {0, 20, 50}) {
    std::vector<Column> columns(kPredictors, Column(30));
    Column y(30, 5);
    for (std::size_t i = 0; i < 30; ++i) {
      const auto common = std::ldexp(static_cast<Extended>(engine() % 32), closeness);
      for (std::size_t k = 0; k < kPredictors; ++k) {
        columns[k][i] = common + static_cast<Extended>(engine() % 64);
        y[i] += static_cast<Extended>(k % 4) * columns[k][i];
      }
    }
    const auto fit_of = [&](std::size_t rows, std::initializer_list<Extended> errors) {
      std::vector<ColumnView> views;
      for (const Column& column : columns) views.emplace_back(std::span(column).first(rows));
      LinearModel model(kPredictors);
      for (const Extended error : errors) {
        Column noisy(rows);
        for (std::size_t i = 0; i < rows; ++i) noisy[i] = y[i] + error;
        model.Add(views, noisy);
      }
      return model.Fit();
    };
    EXPECT_GE(fit_of(30, {1, -1}).ConditionBits(), 2 * closeness);
    // With errors, a perfect fit, and as many rows as coefficients. Every fourth predictor has no
    // effect.
    for (const LinearFit& fit : {fit_of(30, {1, -1}), fit_of(30, {0}), fit_of(15, {0})}) {
      EXPECT_GT(fit.Precision(), 90U);
      EXPECT_EQ(fit.ResidualSumOfSquares(), fit.Count() == 60 ? 60 : 0);
      EXPECT_EQ(fit.Values()[0], 5);
      for (std::size_t k = 0; k < kPredictors; ++k) EXPECT_EQ(fit.Values()[k + 1], k % 4);
    }
    EXPECT_EQ(fit_of(30, {0}).Anova().regression.f, kInfinity);
    columns.back() = columns.front();
    EXPECT_THROW(fit_of(30, {0}), CollinearityError);
  }
}

}  // namespace qorvex
