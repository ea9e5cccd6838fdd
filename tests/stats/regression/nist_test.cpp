// The linear regression and ANOVA sets of NIST: every figure is the nearest to the exact one.

#include "stats/regression/nist_sets.h"

namespace qorvex {

using testing::DataFile;
using testing::Table;

struct LinearSet {
  const char* name;
  std::size_t predictors;
  std::size_t degree;  // 0 for several predictors
  Intercept intercept = Intercept::kIncluded;
};

constexpr LinearSet kLinearSets[] = {{"Norris", 1, 0},
                                     {"Pontius", 1, 2},
                                     {"NoInt1", 1, 0, Intercept::kOmitted},
                                     {"NoInt2", 1, 1, Intercept::kOmitted},
                                     {"Filip", 1, 10},
                                     {"Longley", 6, 0},
                                     {"Wampler1", 1, 5},
                                     {"Wampler2", 1, 5},
                                     {"Wampler3", 1, 5},
                                     {"Wampler4", 1, 5},
                                     {"Wampler5", 1, 5}};

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
  for (const LinearSet& set : kLinearSets) {
    const DataFile data(std::string(set.name) + ".txt", set.predictors + 1);
    for (const bool as_decimals : {false, true}) {
      std::vector<ColumnView> columns = data.Views(as_decimals);
      const ColumnView response = columns.back();
      columns.pop_back();
      LinearModel model = set.degree > 0 ? LinearModel::Polynomial(set.degree, set.intercept)
                                         : LinearModel(set.predictors, set.intercept);
      model.Add(columns, response);
      testing::ExpectFigures(figures, set.name, as_decimals ? "decimal" : "extended",
                             FiguresOf(model.Fit(), set.intercept));
    }
  }
}

// The rule of the sets SmLs01 to SmLs09: nine groups of values with one decimal.
std::vector<std::vector<std::string>> SimonLesageGroups(std::size_t replicates,
                                                        const std::string& base) {
  const auto step = [](std::size_t k) { return k == 1 ? 2 : k % 2 == 0 ? 1 : 3; };
  std::vector<std::vector<std::string>> groups(9);
  for (std::size_t g = 1; g <= 9; ++g) {
    for (std::size_t r = 1; r <= replicates; ++r)
      groups[g - 1].push_back(base + "." + std::to_string(step(g) + step(r)));
  }
  return groups;
}

void ExpectAnova(const Table& table, const std::string& set, const std::string& column,
                 const OneWayAnovaTable& anova) {
  testing::ExpectFigures(table, set, column,
                         {{"ssbetween", anova.between.sum_of_squares},
                          {"msbetween", anova.between.mean_square},
                          {"F", anova.between.f},
                          {"p_F", anova.between.p},
                          {"sswithin", anova.within.sum_of_squares},
                          {"mswithin", anova.within.mean_square},
                          {"r2", anova.determination},
                          {"rsd", anova.residual_std_dev},
                          {"tss", anova.total.sum_of_squares}});
}

TEST(OneWayAnova, HasTheNearestNumberToEveryFigureOfTheNistSets) {
  const Table table("nist/anova.csv");
  for (const char* set : {"SiRstv", "AtmWtAg"}) {
    const DataFile data(std::string(set) + ".txt", 2);
    for (const bool as_decimals : {false, true}) {
      ExpectAnova(table, set, as_decimals ? "decimal" : "extended",
                  OneWayAnovaByLabel(data.decimal[0].integers, data.Views(as_decimals)[1]));
    }
  }
  constexpr std::size_t replicates[] = {21, 201, 2001};
  const std::string bases[] = {"1", "1000000", "1000000000000"};
  for (std::size_t i = 0; i < 9; ++i) {
    const std::string set = "SmLs0" + std::to_string(i + 1);
    std::vector<std::vector<Extended>> extended;
    std::vector<testing::DecimalColumn> decimal;
    for (const auto& texts : SimonLesageGroups(replicates[i % 3], bases[i / 3])) {
      std::ranges::transform(texts, std::back_inserter(extended.emplace_back()),
                             [](const std::string& text) { return Str2Float(text); });
      decimal.emplace_back(texts);
    }
    std::vector<ColumnView> views;
    for (const auto& column : decimal) views.push_back(column.View());
    ExpectAnova(table, set, "extended", OneWayAnova(extended));
    ExpectAnova(table, set, "decimal", OneWayAnova(views));
  }
}

}  // namespace qorvex
