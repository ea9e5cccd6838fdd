#include "qorvex/stats/exact/exact_pairs.h"

#include <map>
#include <string>

#include "qorvex/vector/building.h"
#include "support/failing_allocation.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

namespace {

using Figures = std::map<std::string, Extended (ExactPairs::*)() const>;

const Figures kFigures{
    {"sum_x", &ExactPairs::SumX},
    {"sum_of_squares_y", &ExactPairs::SumOfSquaresY},
    {"sum_of_products", &ExactPairs::SumOfProducts},
    {"mean_x", &ExactPairs::MeanX},
    {"mean_y", &ExactPairs::MeanY},
    {"sample_variance_x", &ExactPairs::SampleVarianceX},
    {"population_variance_y", &ExactPairs::PopulationVarianceY},
    {"population_std_dev_x", &ExactPairs::PopulationStdDevX},
    {"sample_std_dev_y", &ExactPairs::SampleStdDevY},
    {"sample_covariance", &ExactPairs::SampleCovariance},
    {"population_covariance", &ExactPairs::PopulationCovariance},
    {"correlation", &ExactPairs::Correlation},
    {"determination", &ExactPairs::Determination},
    {"slope", &ExactPairs::Slope},
    {"intercept", &ExactPairs::Intercept},
    {"sse", &ExactPairs::SumOfSquaredErrors},
    {"regression", &ExactPairs::RegressionSumOfSquares},
};

TEST(ExactPairs, AgreesWithFractionsToTheLastBit) {
  const testing::Table table("tables/exact_pairs.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::vector<Extended> decimals = table.Values(row, "decimals");
    const auto x_decimals = static_cast<int>(decimals[0]);
    const auto y_decimals = static_cast<int>(decimals[1]);
    ExactPairs pairs(x_decimals, y_decimals), exchanged(y_decimals, x_decimals);
    pairs.Add(table.Values(row, "x"), table.Values(row, "y"));
    exchanged.Add(table.Values(row, "y"), table.Values(row, "x"));
    for (const auto& [column, figure] : kFigures)
      EXPECT_EQ((pairs.*figure)(), table.Value(row, column)) << column << ", row " << row + 1;
    EXPECT_EQ(exchanged.SumY(), pairs.SumX());
    EXPECT_EQ(exchanged.SumOfSquaresX(), pairs.SumOfSquaresY());
    EXPECT_EQ(exchanged.SampleVarianceY(), pairs.SampleVarianceX());
    EXPECT_EQ(exchanged.PopulationVarianceX(), pairs.PopulationVarianceY());
    EXPECT_EQ(exchanged.PopulationStdDevY(), pairs.PopulationStdDevX());
    EXPECT_EQ(exchanged.SampleStdDevX(), pairs.SampleStdDevY());
    EXPECT_EQ(exchanged.Correlation(), pairs.Correlation());
  }
}

TEST(ExactPairs, NeitherOrderNorSplitMatters) {
  testing::Engine engine(18);
  const auto x = testing::RandomVector<Extended>(engine, 3000);
  const auto y = testing::RandomVector<double>(engine, 3000);
  ExactPairs whole, reversed, parts[3], merged;
  whole.Add(x, y);
  reversed.Add(ReverseVector(x), ReverseVector(y));
  for (std::size_t i = 0; i < x.size(); ++i) parts[i % 7 % 3].Add(x[i], y[i]);
  for (const ExactPairs& part : parts) merged.Merge(part);
  EXPECT_EQ(reversed, whole);
  EXPECT_EQ(merged, whole);
  for (const auto& [name, figure] : kFigures)
    EXPECT_EQ((merged.*figure)(), (whole.*figure)()) << name;

  ExactPairs more = whole;
  more.Add(TQorFloatVector{1, kInfinity}, TQorByteVector{7, 0});
  EXPECT_FALSE(more == whole);
  more.Remove(1.0L, 7.0L);
  more.Remove(TQorFloatVector{kInfinity}, TQorSingleVector{0});
  EXPECT_EQ(more, whole);
  EXPECT_EQ(more.Count(), 3000U);
  EXPECT_MATH_ERROR(more.Remove(1.0L, kInfinity), rsInvalidValue);
  EXPECT_EQ(more, whole);
  const ExactPairs large = [] {
    ExactPairs pair;
    pair.Add(1e4000L, 1e-4000L);
    return pair;
  }();
  testing::ExpectFailuresChangeNothing([&] { more.Merge(large); }, [&] { return more == whole; });
  EXPECT_EQ(more.Count(), 3001U);
  EXPECT_MATH_ERROR(parts[0].Remove(whole), rsInvalidValue);
  EXPECT_MATH_ERROR(parts[0].Merge(ExactPairs(0, 1)), rsInvalidValue);
  EXPECT_MATH_ERROR(ExactPairs(0, -1), rsInvalidValue);
}

TEST(ExactPairs, RefusesWhatHasNoFigure) {
  const auto expect_errors = [](const ExactPairs& pairs, std::initializer_list<const char*> figures,
                                MessageId id) {
    for (const char* figure : figures) EXPECT_MATH_ERROR((pairs.*kFigures.at(figure))(), id);
  };
  ExactPairs pairs, exchanged;
  EXPECT_MATH_ERROR(pairs.Add(TQorFloatVector{1}, TQorFloatVector()), rsSameDimensions);
  for (const auto& [name, figure] : kFigures) {
    if (name.starts_with("sum")) {
      EXPECT_EQ((pairs.*figure)(), 0);
    } else {
      expect_errors(pairs, {name.c_str()}, rsVectorIsEmpty);
    }
  }
  pairs.Add(-0.0L, 0.1L);
  EXPECT_FALSE(std::signbit(pairs.MeanX()));
  EXPECT_EQ(pairs.PopulationCovariance(), 0);
  expect_errors(pairs,
                {"sample_variance_x", "sample_std_dev_y", "sample_covariance", "correlation",
                 "determination", "slope", "intercept", "sse"},
                rsVectorG1);
  for (int i = 0; i < 9; ++i) {
    pairs.Add(static_cast<Extended>(i), 0.1L);
    exchanged.Add(0.1L, static_cast<Extended>(i));
  }
  EXPECT_EQ(pairs.Slope(), 0);
  EXPECT_EQ(pairs.Intercept(), 0.1L);
  EXPECT_EQ(pairs.SumOfSquaredErrors(), 0);
  expect_errors(pairs, {"correlation", "determination"}, rsSameValue);
  expect_errors(exchanged, {"correlation", "slope", "intercept", "sse", "regression"}, rsSameValue);
  pairs.Add(kInfinity, 0.1L);
  EXPECT_EQ(pairs.MeanX(), kInfinity);
  EXPECT_EQ(pairs.SampleVarianceY(), 0);
  for (const char* name : {"population_std_dev_x", "sample_covariance", "correlation",
                           "determination", "slope", "intercept", "sse"})
    EXPECT_TRUE(std::isnan((pairs.*kFigures.at(name))())) << name;
}

}  // namespace

}  // namespace qorvex
