#include "apps/qorvex-gallery/model/regression_report.h"

#include <cmath>

#include "qorvex/stats/regression/linear_model.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

// Diagrams compute the fitted values another way than the fit itself, which is exact.
TEST(RegressionReport, DrawsTheResidualsOfTheFit) {
  RegressionData data;
  data.response.name = "y";
  data.predictors = {{"x", {}}};
  for (int i = 0; i < 40; ++i) {
    const Extended x = 1e6L + i;
    data.predictors[0].values.Append(x);
    data.response.values.Append(std::sin(static_cast<Extended>(i)) + 0.25L * i);
  }
  const auto expect_residuals = [&](const LinearModel& empty) {
    LinearModel model = empty;
    std::vector<ColumnView> views;
    for (const auto& column : data.predictors) views.emplace_back(column.values);
    model.Add(views, data.response.values);
    const TQorFloatVector exact = model.Fit().Residuals(views, data.response.values);
    const auto layers = RegressionReport(data).Residuals();
    ASSERT_EQ(layers.size(), 2U);
    ASSERT_EQ(layers[1].points.size(), exact.size());
    for (std::size_t i = 0; i < exact.size(); ++i)
      EXPECT_NEAR(layers[1].points[i].y(), static_cast<double>(exact[i]), 1e-12) << i;
  };
  for (data.degree = 1; data.degree <= 6; ++data.degree)
    expect_residuals(LinearModel::Polynomial(data.degree));
  data.predictors.push_back({"z", {}});
  for (int i = 0; i < 40; ++i) data.predictors[1].values.Append(std::cos(Extended{0.7L} * i));
  expect_residuals(LinearModel(2));
}

}  // namespace
}  // namespace qorvex::gallery
