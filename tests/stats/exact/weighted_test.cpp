#include "qorvex/stats/exact/weighted.h"

#include <map>
#include <string>

#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/exact/weighted_quantile.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/sorting.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

namespace {

const std::map<std::string, WeightKind> kKinds{{"frequency", WeightKind::kFrequency},
                                               {"reliability", WeightKind::kReliability},
                                               {"population", WeightKind::kPopulation}};

TEST(Weighted, AgreesWithFractionsToTheLastBit) {
  const testing::Table table("tables/weighted.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    SCOPED_TRACE(row + 1);
    const TQorFloatVector values(table.Values(row, "values"));
    const TQorFloatVector weights(table.Values(row, "weights"));
    EXPECT_EQ(WeightedMean(values, weights), table.Value(row, "mean"));
    EXPECT_EQ(WeightedMean(ReverseVector(values), ReverseVector(weights)),
              table.Value(row, "mean"));
    for (const auto& [name, kind] : kKinds) {
      EXPECT_EQ(WeightedVariance(values, weights, kind), table.Value(row, "variance_" + name));
      EXPECT_EQ(WeightedStdDev(values, weights, kind), table.Value(row, "std_dev_" + name));
    }
  }
}

// Sorted decimal values with many ties, and how often each occurs.
struct FrequencySample {
  TQorDoubleVector values;
  TQorByteVector frequencies;
  TQorDoubleVector expanded;

  FrequencySample(testing::Engine& engine, std::size_t n)
      : values(TQorDoubleVector::WithLength(n)), frequencies(TQorByteVector::WithLength(n)) {
    for (double& x : values) x = static_cast<double>(engine() % 30) / 10;
    QSortVector(values, true);
    for (std::size_t i = 0; i < n; ++i) {
      frequencies[i] = static_cast<std::uint8_t>(engine() % 4);
      for (int k = 0; k < frequencies[i]; ++k) expanded.Append(values[i]);
    }
  }
};

TEST(Weighted, FrequenciesRepeatValues) {
  testing::Engine engine(18);
  for (std::size_t n = 10; n < 50; ++n) {
    const FrequencySample sample(engine, n);
    ExactSample<2> expanded;
    expanded.Add(sample.expanded);
    EXPECT_EQ(WeightedMean(sample.values, sample.frequencies), expanded.Mean());
    EXPECT_EQ(WeightedVariance(sample.values, sample.frequencies, WeightKind::kFrequency),
              expanded.SampleVariance());
    EXPECT_EQ(WeightedStdDev(sample.values, sample.frequencies, WeightKind::kPopulation),
              expanded.PopulationStdDev());
    for (int type = 1; type <= 9; ++type) {
      for (int k = 0; k <= 40; ++k) {
        const Extended p = k / 40.0L;
        const auto of_type = static_cast<QuantileType>(type);
        ASSERT_EQ(WeightedQuantile(sample.values, sample.frequencies, p, of_type),
                  GetQuantile(sample.expanded, p, of_type))
            << sample.expanded << ", p " << p << ", type " << type;
      }
    }
  }
}

TEST(Weighted, QuantilesOfAnyWeights) {
  const TQorFloatVector sorted{1, 2, 3, 5, 8};
  const TQorFloatVector tenths{0.1L, 0.2L, 0.4L, 0.2L, 0.1L};
  constexpr struct {
    Extended p, type_1, type_2;
  } cases[] = {{0, 1, 1},    {0.1L, 1, 1.5L}, {0.11L, 2, 2},   {0.3L, 2, 2.5L}, {0.5L, 3, 3},
               {0.7L, 3, 4}, {0.75L, 5, 5},   {0.9L, 5, 6.5L}, {0.9001L, 8, 8}, {1, 8, 8}};
  for (const auto& [p, type_1, type_2] : cases) {
    for (const int exponent : {0, 16380, -16380}) {
      TQorFloatVector weights = CopyVector(tenths);
      for (Extended& weight : weights) weight = std::ldexp(weight, exponent);
      EXPECT_EQ(WeightedQuantile(sorted, weights, p), type_1) << p;
      EXPECT_EQ(WeightedQuantile(sorted, weights, p, QuantileType::k2), type_2) << p;
    }
  }
  constexpr Extended half = 0x1p61L;  // a sample too long to be built
  EXPECT_EQ(WeightedQuantile({1, 2}, {half, half}, 0.5L, QuantileType::k7), 1.5L);
  for (int type = 1; type <= 9; ++type) {
    const auto of_type = static_cast<QuantileType>(type);
    EXPECT_EQ(WeightedQuantile({1, 2, 9}, {2 * half - 1, 1, 0}, 1, of_type), 2) << type;
  }
  EXPECT_EQ(WeightedQuantile({1, 2, 9}, {1, 1e-30L, 0}, 1), 2);
  EXPECT_EQ(WeightedQuantile({1, 2, 9}, {1, 1e-30L, 0}, 1, QuantileType::k2), 2);
  EXPECT_MATH_ERROR(WeightedQuantile({1, 2}, {half, 2 * half}, 0.5L, QuantileType::k7),
                    rsFrequencies);
  EXPECT_MATH_ERROR(WeightedQuantile(sorted, tenths, 0.5L, QuantileType::k7), rsFrequencies);
  EXPECT_MATH_ERROR(WeightedQuantile(TQorFloatVector(), tenths, 1.5L), rsSameDimensions);
  EXPECT_MATH_ERROR(WeightedQuantile(sorted, tenths, 1.5L), rsValue01Inc);
}

TEST(Weighted, SpecialValuesAndErrors) {
  const TQorFloatVector values{kNaN, 2, 4, kInfinity};
  EXPECT_EQ(WeightedMean(values, TQorByteVector{0, 1, 3, 0}), 3.5L);
  EXPECT_EQ(WeightedVariance(values, TQorByteVector{0, 1, 3, 0}, WeightKind::kFrequency), 1);
  EXPECT_EQ(WeightedQuantile(values, TQorByteVector{0, 1, 3, 0}, 1), 4);
  EXPECT_EQ(WeightedMean(values, TQorByteVector{0, 1, 3, 1}), kInfinity);
  EXPECT_TRUE(std::isnan(WeightedMean(values, TQorByteVector{1, 1, 1, 1})));
  EXPECT_TRUE(std::isnan(WeightedVariance(values, {0, 1, 1, 1}, WeightKind::kPopulation)));
  EXPECT_EQ(WeightedVariance({3, 4}, {1, 0}, WeightKind::kPopulation), 0);

  struct {
    TQorFloatVector values, weights;
    MessageId id;
  } const faults[] = {
      {{1, 2}, {1}, rsSameDimensions},      {{}, {}, rsVectorIsEmpty},
      {{1, 2}, {1, -1}, rsInvalidWeight},   {{1, 2}, {1, kInfinity}, rsInvalidWeight},
      {{1, 2}, {0, kNaN}, rsInvalidWeight}, {{1, 2}, {0, -0.0L}, rsWeightsZero},
  };
  for (const auto& [x, w, id] : faults) {
    EXPECT_MATH_ERROR(WeightedMean(x, w), id);
    EXPECT_MATH_ERROR(WeightedVariance(x, w, WeightKind::kReliability), id);
    EXPECT_MATH_ERROR(WeightedQuantile(x, w, 0.5L), id);
  }
  EXPECT_MATH_ERROR(WeightedVariance({1, 2}, {0.5L, 0.5L}, WeightKind::kFrequency), rsWeightSum);
  EXPECT_MATH_ERROR(WeightedStdDev({1, 2}, {0, 5}, WeightKind::kReliability), rsOneWeight);
}

}  // namespace

}  // namespace qorvex
