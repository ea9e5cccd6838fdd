// Figures of R, to the digits that it has: those that are not rational numbers of the data, and
// some others for the conventions.

#include "qorvex/stats/regression/linear_model.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

class RFigures : public ::testing::Test {
 protected:
  void ExpectEqual(const std::string& model, const LinearFit& fit, const Columns& predictors,
                   const Columns& weights, VectorView<Extended> at, Extended confidence) {
    SCOPED_TRACE(model);
    std::map<std::string, std::vector<Extended>> ours;
    for (std::size_t i = 0; i < fit.Size(); ++i) {
      const FittedCoefficient coefficient = fit.Coefficient(i);
      ours["t"].push_back(coefficient.t);
      ours["p"].push_back(coefficient.p);
      EXPECT_NEAR(static_cast<double>(std::exp(coefficient.log_p) / coefficient.p), 1, 1e-15);
      const Interval<Extended> interval = fit.ConfidenceInterval(i, confidence);
      ours["least"].push_back(interval.least);
      ours["greatest"].push_back(interval.greatest);
    }
    const RegressionAnova table = fit.Anova();
    for (const AnovaTest& term : table.terms) {
      ours["term_f"].push_back(term.f);
      ours["term_p"].push_back(term.p);
      ours["term_ss"].push_back(term.sum_of_squares);
    }
    ours["f_p"] = {table.regression.p};
    ours["f_log_p"] = {table.regression.log_p};
    const Prediction predicted = fit.Predict(at, confidence);
    ours["predicted"] = {predicted.value};
    ours["predicted_error"] = {predicted.standard_error};
    ours["confidence"] = {predicted.confidence.least, predicted.confidence.greatest};
    ours["prediction"] = {predicted.prediction.least, predicted.prediction.greatest};
    const TQorFloatVector leverages =
        weights.Size() == 0 ? fit.Leverages(predictors) : fit.Leverages(predictors, weights[0]);
    ours["leverage"].assign(leverages.begin(), leverages.end());

    ExpectEqual(model, ours);
  }

  void ExpectEqual(const std::string& model, std::map<std::string, std::vector<Extended>> ours) {
    std::size_t judged = 0;
    for (std::size_t row = 0; row < table_.size(); ++row) {
      if (table_.Text(row, "case") != model) continue;
      ++judged;
      const std::string& figure = table_.Text(row, "figure");
      const std::vector<Extended> expected = table_.Values(row, "values");
      ASSERT_EQ(ours[figure].size(), expected.size()) << figure;
      for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_LE(std::fabs(ours[figure][i] - expected[i]), 1e-11L * std::fabs(expected[i]))
            << figure << ' ' << i;
      }
    }
    EXPECT_EQ(judged, ours.size());
  }

  const std::vector<double> kLight{2.5, 3.1, 4.0, 4.4, 5.2, 5.9, 6.3, 7.1, 7.7, 8.6};
  const std::vector<double> kWater{1.0, 3.5, 2.0, 4.5, 1.5, 3.0, 5.0, 2.5, 4.0, 0.5};
  const std::vector<double> kHeight{10.2, 15.9, 14.1, 20.8, 15.0, 19.4, 24.6, 20.1, 24.7, 19.0};
  const std::vector<double> kWeight{1, 2, 1, 0.5, 3, 1, 2, 1.5, 1, 4};

 private:
  testing::Table table_{"regression/r_linear_models.csv"};
};

TEST_F(RFigures, OfPlanesAndAParabola) {
  const Columns both{kLight, kWater};
  LinearModel plane(2);
  plane.Add(both, kHeight);
  ExpectEqual("plane", plane.Fit(), both, {}, {6, 2.25L}, 0.95L);
  LinearModel weighted(2);
  weighted.AddWeighted(both, kHeight, kWeight);
  ExpectEqual("weighted", weighted.Fit(), both, kWeight, {6, 2.25L}, 0.9L);
  LinearModel origin(2, Intercept::kOmitted);
  origin.Add(both, kHeight);
  ExpectEqual("origin", origin.Fit(), both, {}, {6, 2.25L}, 0.99L);
  LinearModel parabola = LinearModel::Polynomial(2);
  parabola.Add(kLight, kHeight);
  ExpectEqual("parabola", parabola.Fit(), kLight, {}, {6}, 0.95L);
}

TEST_F(RFigures, OfGroupsOfDifferentSizes) {
  const OneWayAnovaTable table = OneWayAnova(
      {{6.9L, 5.4L, 5.8L, 4.6L, 4.0L}, {8.3L, 6.8L, 7.8L, 9.2L, 6.5L, 7.1L, 8.8L}, {8.0L, 10.5L}});
  ExpectEqual("groups", {{"ss", {table.between.sum_of_squares, table.within.sum_of_squares}},
                         {"ms", {table.between.mean_square, table.within.mean_square}},
                         {"f", {table.between.f}},
                         {"p", {table.between.p}}});
}

}  // namespace qorvex
