#include "qorvex/stats/grouped.h"

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

TEST(Grouped, AgreesWithTheTableToTheLastBit) {
  const testing::Table table("tables/grouped.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    TQorLWordVector freq;
    for (const Extended f : table.Values(row, "freq")) freq.Append(static_cast<std::uint32_t>(f));
    const Extended low = table.Value(row, "lower_bound");
    const Extended width = table.Value(row, "width");
    const Extended mean = table.Value(row, "mean");
    const auto of = [&](auto routine, auto... arguments) {
      return routine(freq, low, width, arguments...);
    };
    Extended q1, q3, sum, sum_sq, deciles[9];
    GetGroupedDeciles(freq, low, width, deciles);
    GroupedQuartiles(freq, low, width, q1, q3);
    GroupedSums(freq, low, width, sum, sum_sq);
    for (const auto& [column, figure] : {
             std::pair("mean", of(GroupedMean)),
             {"median", of(GroupedMedian)},
             {"q1", q1},
             {"q3", q3},
             {"sample_variance", of(GroupedSampleVariance)},
             {"population_variance", of(GroupedPopulationVariance)},
             {"sample_std_dev", of(GroupedSampleStdDev)},
             {"population_std_dev", of(GroupedPopulationStdDev)},
             {"mean_dev", of(GetGroupedMeanDev, 12.5L)},
             {"sum", sum},
             {"sum_sq", sum_sq},
             {"sample_skew", of(GetGroupedSampleSkew, mean, 3.25L)},
             {"population_skew", of(GetGroupedPopulationSkew, mean, 3.25L)},
             {"sample_kurtosis", of(GetGroupedSampleKurtosis, mean, 3.25L)},
             {"population_kurtosis", of(GetGroupedPopulationKurtosis, mean, 3.25L)},
         })
      EXPECT_EQ(figure, table.Value(row, column)) << column << ", row " << row + 1;
    for (std::size_t i = 0; i < 9; ++i)
      EXPECT_EQ(deciles[i], table.Value(row, "decile" + std::to_string(i + 1))) << row + 1;
  }
}

}  // namespace qorvex
