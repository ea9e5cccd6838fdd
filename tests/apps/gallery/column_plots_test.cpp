#include "apps/qorvex-gallery/model/column_plots.h"

#include <cmath>

#include "apps/qorvex-gallery/model/autocorrelation.h"
#include "apps/qorvex-gallery/plot/plot_extent.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

std::vector<double> Ys(const PlotLayer& layer) {
  std::vector<double> values;
  for (const QPointF& point : layer.points) values.push_back(point.y());
  return values;
}

std::vector<double> Xs(const PlotLayer& layer) {
  std::vector<double> values;
  for (const QPointF& point : layer.points) values.push_back(point.x());
  return values;
}

void ExpectNear(const std::vector<double>& values, const std::vector<double>& expected) {
  ASSERT_EQ(values.size(), expected.size());
  for (std::size_t i = 0; i < values.size(); ++i) EXPECT_NEAR(values[i], expected[i], 1e-14) << i;
}

// R 4.2: acf(x, lag.max = 5, plot = FALSE), with na.action = na.pass where x has missing values.
TEST(Autocorrelations, AreThoseOfR) {
  TQorFloatVector series = {3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5, 8};
  const auto of = [&series] {
    std::vector<double> values;
    for (const Extended value : Autocorrelations(series, 5))
      values.push_back(static_cast<double>(value));
    return values;
  };
  ExpectNear(of(), {1, -0.077044025157232743, -0.088050314465408813, 0.273584905660377353,
                    -0.317610062893081746, -0.106918238993710710});
  series[3] = series[8] = kNaN;
  ExpectNear(of(), {1, -0.100171232876712354, -0.039383561643835607, 0.025684931506849296,
                    -0.312328767123287609, -0.097135740971357395});
  EXPECT_EQ(Autocorrelations({1, 2}, 5).size(), 2U);
  for (const TQorFloatVector& none :
       {TQorFloatVector{}, {7, 7}, {kNaN, kNaN}, {1, kInfinity}, {-1e4000L, 1e4000L}})
    EXPECT_TRUE(Autocorrelations(none, 5).empty());
}

// R 4.2: quantile(v, c(.25, .5, .75), type = 5).
TEST(BoxPlot, HasAWhiskerToTheLastValueWithinReachAndPointsBeyond) {
  const TQorFloatVector values = {2, 4, 4, 5, 6, 7, 8, 9, 10, 30, -11, kNaN, kInfinity};
  const PlotContent plot = BoxPlot({{"a", values}, {"none", {kNaN}}, {"b", {1}}}, "title");
  // From the bottom.
  EXPECT_EQ(plot.y.categories, QStringList({"b", "a"}));
  ASSERT_EQ(plot.layers.size(), 3U);
  EXPECT_EQ(Xs(plot.layers[0]), std::vector<double>(5, 1));
  EXPECT_EQ(Xs(plot.layers[1]), (std::vector<double>{2, 4, 6, 8.75, 10}));
  EXPECT_EQ(Ys(plot.layers[1]), std::vector<double>(5, 1));
  EXPECT_EQ(Xs(plot.layers[2]), (std::vector<double>{-11, 30}));
  EXPECT_EQ(PlotExtent(plot).y, (AxisRange{-0.5, 1.5}));
}

// R 4.2: qnorm((1:5 - 0.5) / 5).
TEST(NormalQuantilePlot, ShowsOrderedValuesAndTheLineThroughTheQuartiles) {
  const PlotContent plot = NormalQuantilePlot({"x", {5, 1, kNaN, 2, 4, 3}});
  ExpectNear(Xs(plot.layers[1]), {-1.2815515655446008, -0.52440051270804067, 0, 0.52440051270804067,
                                  1.2815515655446008});
  EXPECT_EQ(Ys(plot.layers[1]), (std::vector<double>{1, 2, 3, 4, 5}));
  // The quartiles are 1.75 and 4.25.
  const double slope = 1.25 / 0.67448975019608171;
  ExpectNear(Ys(plot.layers[0]), {3 - 1.2815515655446008 * slope, 3 + 1.2815515655446008 * slope});

  TQorFloatVector many;
  for (int i = 0; i < 100'000; ++i) many.Append(i);
  const std::vector<double> shown = Ys(NormalQuantilePlot({"x", many}).layers[1]);
  EXPECT_LT(shown.size(), 5000U);
  EXPECT_EQ(shown[499], 499);
  EXPECT_EQ(shown[shown.size() - 500], 99'500);
  EXPECT_TRUE(std::ranges::is_sorted(shown));
}

// R 4.2: resid(lm(y ~ x)).
TEST(ResidualPlot, ShowsResidualsOfTheLine) {
  const TQorFloatVector x = {1, 2, kNaN, 3, 5, 9}, y = {2, 1, 7, 4, 4, kNaN};
  const PlotContent plot = ResidualPlot({"x", x}, {"y", y});
  ExpectNear(Ys(plot.layers[1]),
             {0.4, -1.2571428571428569, 1.0857142857142856, -0.22857142857142862});
  EXPECT_EQ(Xs(ScatterPlot({"x", x}, {"y", y}).layers[0]), (std::vector<double>{1, 2, 3, 5}));
  EXPECT_TRUE(ResidualPlot({"x", {1, 1}}, {"y", {1, 2}}).layers.empty());
}

TEST(HistogramPlot, HasAsManyClassesAsAskedFor) {
  const NamedValues column = {"x", {1, 2, 2.5L, 9, 5, kNaN}};
  const PlotContent plot = HistogramPlot(column, 4);
  EXPECT_EQ(Xs(plot.layers[0]), (std::vector<double>{1, 3, 5, 7, 9}));
  // The greatest value is in the last class.
  EXPECT_EQ(Ys(plot.layers[0]), (std::vector<double>{0, 0.3, 0, 0.1, 0.1}));
  EXPECT_EQ(plot.layers.size(), 2U);
  EXPECT_EQ(HistogramPlot({"x", {1, 2, 9}}, 1).layers[0].points.size(), 2U);
  EXPECT_EQ(HistogramPlot({"x", {3, 3}}, 7).layers.size(), 1U);
  EXPECT_TRUE(HistogramPlot({"x", {kNaN}}, 7).layers.empty());
}

}  // namespace
}  // namespace qorvex::gallery
