// The linear regression and ANOVA sets of NIST: every figure is the nearest to the exact one.

#include "stats/regression/nist_sets.h"
#include "support/test.h"

namespace qorvex {

using testing::LinearSet;
using testing::Table;

// Expects each figure of a set to be the nearest extended number to the exact one; probabilities,
// whose names begin with p, to be off by no more than 1e-18 of it.
void ExpectFigures(const Table& table, const std::string& set, const std::string& column,
                   const std::map<std::string, Extended>& figures) {
  std::size_t judged = 0;
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (table.Text(row, "set") != set) continue;
    ++judged;
    const std::string& name = table.Text(row, "figure");
    const Extended exact = table.Value(row, column);
    const Extended ours = figures.at(name);
    const bool is_close = name.starts_with("p") && std::fabs(ours - exact) <= 1e-18L * exact;
    EXPECT_TRUE(ours == exact || is_close) << set << ' ' << name << ' ' << column << ' ' << ours;
  }
  EXPECT_GE(judged, 9U) << set;
}

std::map<std::string, Extended> FiguresOf(const LinearFit& fit, Intercept intercept) {
  std::map<std::string, Extended> figures;
  const std::size_t first = intercept == Intercept::kOmitted ? 1 : 0;
  for (std::size_t i = 0; i < fit.Size(); ++i) {
    const FittedCoefficient coefficient = fit.Coefficient(i);
    figures["B" + std::to_string(i + first)] = coefficient.value;
    figures["sdB" + std::to_string(i + first)] = coefficient.standard_error;
  }
  const RegressionAnova table = fit.Anova();
  figures["rsd"] = fit.ResidualStdDev();
  figures["r2"] = fit.Determination();
  figures["ssreg"] = table.regression.sum_of_squares;
  figures["msreg"] = table.regression.mean_square;
  figures["F"] = table.regression.f;
  figures["p_F"] = table.regression.p;
  figures["rss"] = table.residual.sum_of_squares;
  figures["msres"] = table.residual.mean_square;
  figures["tss"] = table.total.sum_of_squares;
  return figures;
}

TEST(LinearModel, HasTheNearestNumberToEveryFigureOfTheNistSets) {
  const Table figures("nist/linear_models.csv");
  for (const LinearSet& set : testing::kLinearSets) {
    const testing::DataColumns data(testing::ReadTexts(set.name, set.predictors + 1));
    for (const bool as_decimals : {false, true}) {
      ExpectFigures(figures, set.name, as_decimals ? "decimal" : "extended",
                    FiguresOf(testing::FitOf(set, data, as_decimals), set.intercept));
    }
  }
}

std::map<std::string, Extended> FiguresOf(const OneWayAnovaTable& anova) {
  return {{"ssbetween", anova.between.sum_of_squares},
          {"msbetween", anova.between.mean_square},
          {"F", anova.between.f},
          {"p_F", anova.between.p},
          {"sswithin", anova.within.sum_of_squares},
          {"mswithin", anova.within.mean_square},
          {"r2", anova.determination},
          {"rsd", anova.residual_std_dev},
          {"tss", anova.total.sum_of_squares}};
}

TEST(OneWayAnova, HasTheNearestNumberToEveryFigureOfTheNistSets) {
  const Table figures("nist/anova.csv");
  for (const auto& [name, groups] : testing::AnovaSets()) {
    ExpectFigures(figures, name, "extended", FiguresOf(OneWayAnova(groups.extended)));
    ExpectFigures(figures, name, "decimal", FiguresOf(OneWayAnova(groups.Views(true))));
  }
}

TEST(OneWayAnova, TakesLabelsInAnyOrderAndRefusesWhatHasNoFigures) {
  const OneWayAnovaTable table =
      OneWayAnovaByLabel(std::vector<std::string>{"b", "a", "b", "a", "c"}, {1.0L, 2, 3, 6, 3});
  EXPECT_EQ(FiguresOf(table), FiguresOf(OneWayAnova({{2.0L, 6}, {1.0L, 3}, {3.0L}})));
  EXPECT_EQ(FiguresOf(table), FiguresOf(OneWayAnovaByLabel(
                                  std::vector<unsigned long long>{1, ~0ULL, 1, ~0ULL, 1ULL << 63U},
                                  {1.0L, 2, 3, 6, 3})));
  EXPECT_EQ(table.between.degrees_of_freedom, 2U);
  EXPECT_EQ(table.within.sum_of_squares, 10);
  const std::vector<std::int64_t> tenths{11, 13};
  const std::vector<std::int64_t> hundredths{120, 130};
  EXPECT_EQ(OneWayAnova({ColumnView(tenths, 1), ColumnView(hundredths, 2)}).between.f, 0.2L);
  ExactSample<2> of_tenths, of_hundredths;
  of_tenths.AddScaled(tenths, 1);
  of_hundredths.AddScaled(hundredths, 2);
  EXPECT_EQ(OneWayAnova({of_tenths, of_hundredths}).between.f, 0.2L);
  EXPECT_MATH_ERROR(OneWayAnova({of_tenths, ExactSample<2>()}), rsVectorIsEmpty);
  EXPECT_TRUE(std::isnan(OneWayAnova({{1.0L}, {2.0L}}).between.f));
  EXPECT_TRUE(std::isnan(OneWayAnova({{1.0L, 1}, {1.0L, 1}}).determination));
  EXPECT_EQ(OneWayAnova({{1.0L, 1}, {2.0L, 2}}).between.f, kInfinity);
  EXPECT_MATH_ERROR(OneWayAnova({{1.0L, 2.0L}}), rsValue2);
  EXPECT_MATH_ERROR(OneWayAnova({{1.0L, 2.0L}, std::vector<double>()}), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(OneWayAnovaByLabel(tenths, {1.0L}), rsSameDimensions);
  EXPECT_ERROR(OneWayAnova({{1.0L, kNaN}, {2.0L, 3.0L}}), EInvalidOp, rsInvalidOp);
}

}  // namespace qorvex
