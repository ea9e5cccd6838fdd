#include "qorvex/stats/grouped.h"

#include <array>

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using Deciles = std::array<Extended, 9>;

Deciles DecilesOf(const TQorLWordVector& freq, Extended lower_bound, Extended width) {
  Deciles deciles;
  deciles.fill(-1);
  GetGroupedDeciles(freq, lower_bound, width, deciles);
  return deciles;
}

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
    Extended q1, q3, sum, sum_sq;
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
      EXPECT_EQ(of(DecilesOf)[i], table.Value(row, "decile" + std::to_string(i + 1))) << row + 1;
  }
}

TEST(Grouped, AgreesWithHandComputation) {
  const TQorLWordVector freq = {2, 3, 5};
  EXPECT_EQ(GroupedMean(freq, 0, 10), 18);
  EXPECT_EQ(GroupedMedian(freq, 0, 10), 20);
  EXPECT_EQ(GroupedPopulationVariance(freq, 0, 10), 61);
  const Extended third = 10 / 3.0L;
  EXPECT_EQ(DecilesOf(freq, 0, 10), (Deciles{5, 10, 10 + third, 10 + 2 * third, 20, 5, 5, 5, 5}))
      << "deciles in the last class are the number of values before it";
}

TEST(Grouped, ModeExistsUnlessTheLargestFrequencyIsTied) {
  struct Case {
    TQorLWordVector freq;
    bool exists;
    Extended mode;
  };
  for (const auto& [freq, exists, expected] : {Case{{1, 4, 2}, true, 16},
                                               {{1, 4, 4}, false, -1},
                                               {{4, 4, 9}, true, 20 + 50 / 14.0L},
                                               {{4, 5, 4, 4}, true, 15},
                                               {{6, 2}, true, 6},
                                               {{2, 6}, true, 14},
                                               {{7}, true, 5},
                                               {{0, 0}, false, -1},
                                               {{0xFFFFFFFF, 0}, true, 5}}) {
    Extended mode = -1;
    EXPECT_EQ(GroupedMode(freq, 0, 10, mode), exists);
    EXPECT_EQ(mode, expected);
  }
}

TEST(Grouped, MeansAreZeroAndQuantilesFailWithoutValues) {
  const TQorLWordVector none = {0, 0};
  EXPECT_EQ(GroupedMean(none, 0, 1), 0);
  EXPECT_EQ(GroupedPopulationVariance(none, 0, 1), 0);
  EXPECT_EQ(GroupedSampleVariance({0, 1}, 0, 1), 0);
  EXPECT_EQ(GetGroupedMeanDev(none, 0, 1, 7), 0);
  EXPECT_EQ(DecilesOf(none, 3, 1), Deciles{});

  Extended x = -1;
  Extended y = -1;
  EXPECT_ERROR(GroupedMedian(none, 0, 1), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(GroupedQuartiles(none, 0, 1, x, y), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(GroupedMode({0}, 0, 1, x), EInvalidOp, rsInvalidOp);
  EXPECT_EQ(x, -1);
  EXPECT_EQ(y, -1);
}

TEST(Grouped, CumulativeFrequenciesWrapAround) {
  const TQorLWordVector freq = {0x80000000, 0x80000000, 0x80000000, 0x80000000};
  EXPECT_MATH_ERROR(GroupedMedian(freq, 0, 1), rsMedianNotFound);
  Extended q1 = -1;
  Extended q3 = -1;
  EXPECT_MATH_ERROR(GroupedQuartiles(freq, 0, 1, q1, q3), rsQuartilesNotFound);
  EXPECT_EQ(q1, -1);
  EXPECT_EQ(DecilesOf(freq, 0, 1)[0], 0.4L);
  EXPECT_EQ(DecilesOf(freq, 0, 1)[8], 0x80000000);
}

TEST(Grouped, ChecksInOrder) {
  Extended x = -1;
  Extended y = -1;
  EXPECT_MATH_ERROR(GroupedMean({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedMedian({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedMode({}, 0, 1, x), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedQuartiles({}, 0, 1, x, y), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(DecilesOf({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedSampleStdDev({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedPopulationStdDev({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedSums({}, 0, 1, x, y), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GetGroupedMeanDev({}, 0, 1, 0), rsVectorIsEmpty);
  for (const auto& [routine, least, too_few] : {std::tuple(&GetGroupedSampleSkew, 3U, rsVectorG2),
                                                {&GetGroupedPopulationSkew, 3U, rsVectorG2},
                                                {&GetGroupedSampleKurtosis, 4U, rsVectorG3},
                                                {&GetGroupedPopulationKurtosis, 4U, rsVectorG3}}) {
    EXPECT_MATH_ERROR(routine({}, 0, 1, 0, 0), rsVectorIsEmpty);
    EXPECT_MATH_ERROR(routine({least - 1, 0}, 0, 1, 0, 0), too_few);
    EXPECT_MATH_ERROR(routine({least - 1, 1}, 0, 1, 0, 0), rsStdDev);
  }
}

}  // namespace qorvex
