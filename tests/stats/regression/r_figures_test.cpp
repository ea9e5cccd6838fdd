// Figures of R, to the digits that it has: those that are not rational numbers of the data, and
// some others for the conventions.

#include "qorvex/stats/regression/linear_model.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

class RFigures : public ::testing::Test {
 protected:
  void ExpectEqual(const std::string& model, const LinearFit& fit, const Columns& predictors,
                   const Columns& weights, std::initializer_list<Extended> at,
                   Extended confidence) {
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

  const std::vector<Extended> kLight{2.5L, 3.1L, 4.0L, 4.4L, 5.2L, 5.9L, 6.3L, 7.1L, 7.7L, 8.6L};
  const std::vector<Extended> kWater{1.0L, 3.5L, 2.0L, 4.5L, 1.5L, 3.0L, 5.0L, 2.5L, 4.0L, 0.5L};
  const std::vector<Extended> kHeight{10.2L, 15.9L, 14.1L, 20.8L, 15.0L,
                                      19.4L, 24.6L, 20.1L, 24.7L, 19.0L};
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

}  // namespace qorvex
