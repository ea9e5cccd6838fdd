#include "qorvex/stats/class_frequencies.h"

#include "qorvex/stats/weighted_grouped.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

namespace {

template <class T>
class ClassFrequenciesOf : public ::testing::Test {};
TYPED_TEST_SUITE(ClassFrequenciesOf, FloatTypes);

// Decimal bounds are inexact. Every decimal must be in the class that begins with it.
TYPED_TEST(ClassFrequenciesOf, DecimalsAtTheBounds) {
  for (const int lower : {-700, 0, 3, 1000}) {
    for (int k = 0; k < 400; ++k) {
      const auto decimal = static_cast<TypeParam>(Extended(lower + k) / 10);
      const TQorVector<TypeParam> values{decimal, decimal + TypeParam(0.04),
                                         decimal + TypeParam(0.09)};
      const TQorLWordVector found = ClassFrequencies(values, lower / 10.0L, 0.1L, 400);
      ASSERT_EQ(found[static_cast<std::size_t>(k)], 3U) << lower << ", " << k;
    }
  }
}

TEST(ClassFrequencies, CountWhatIsOutside) {
  const TQorFloatVector values{-0.5L, 0, 1.5L, 2, 2.999L, 3, 7, kNaN, kInfinity, -kInfinity, 1};
  OutsideClasses outside;
  EXPECT_EQ(ClassFrequencies(values, 0, 1, 3, outside), (TQorLWordVector{1, 2, 2}));
  EXPECT_EQ(outside.below, 2U);
  EXPECT_EQ(outside.above, 3U);
  EXPECT_EQ(outside.not_a_number, 1U);
  for (const Extended x : {-0.5L, 3.0L, kNaN, kInfinity, -kInfinity})
    EXPECT_MATH_ERROR(ClassFrequencies(TQorFloatVector{1, x}, 0, 1, 3), rsOutsideClasses);
  EXPECT_EQ(ClassFrequencies(TQorByteVector{255, 0, 128}, -1, 129, 2), (TQorLWordVector{1, 2}));
  EXPECT_EQ(ClassFrequencies(TQorFloatVector{1 - 0x1p-63L, 1 - 0x1p-60L}, 0, 0.5L, 3),
            (TQorLWordVector{0, 1, 1}));
  EXPECT_EQ(ClassFrequencies(TQorFloatVector{1.25e4000L, 1e4000L}, 1e4000L, 1e3999L, 3),
            (TQorLWordVector{1, 0, 1}));
  EXPECT_EQ(ClassFrequencies(TQorFloatVector{0.5e4932L, -0.5e4932L}, -1e4932L, 1e4932L, 2),
            (TQorLWordVector{1, 1}));
  EXPECT_EQ(ClassFrequencies(TQorFloatVector(), 5, 1, 2), (TQorLWordVector{0, 0}));
}

TEST(ClassFrequencies, RefuseImpossibleClasses) {
  constexpr struct {
    Extended lower, width;
    std::uint32_t count;
  } cases[] = {{kNaN, 1, 1}, {-kInfinity, 1, 1}, {0, 0, 1},        {0, -1, 1},
               {0, kNaN, 1}, {0, 1, 0},          {0, kInfinity, 1}};
  OutsideClasses outside{7, 8, 9};
  for (const auto& [lower, width, count] : cases)
    EXPECT_MATH_ERROR(ClassFrequencies(TQorFloatVector{kNaN}, lower, width, count, outside),
                      rsInvalidClasses);
  EXPECT_EQ(outside.above, 8U);
}

TEST(WeightedGrouped, AgreesWithTheTableToTheLastBit) {
  const testing::Table table("tables/weighted_grouped.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    TQorLWordVector freq;
    for (const Extended f : table.Values(row, "freq")) freq.Append(static_cast<std::uint32_t>(f));
    for (const auto& [column, figure] : {
             std::pair("sample_skew", WeightedGroupedSkew(freq)),
             {"population_skew", WeightedGroupedSkew(freq, Estimate::kPopulation)},
             {"sample_kurtosis", WeightedGroupedKurtosis(freq)},
             {"population_kurtosis", WeightedGroupedKurtosis(freq, Estimate::kPopulation)},
         })
      EXPECT_EQ(figure, table.Value(row, column)) << column << ", row " << row + 1;
  }
  // Powers of class numbers beyond 64 bits.
  constexpr std::uint32_t most = 4294967295;
  TQorLWordVector far = TQorLWordVector::WithLength(70000);
  far[0] = far[69999] = most;
  EXPECT_EQ(WeightedGroupedSkew(far, Estimate::kPopulation), 0);
  EXPECT_EQ(WeightedGroupedKurtosis(far, Estimate::kPopulation), -2);
  EXPECT_MATH_ERROR(WeightedGroupedSkew(TQorLWordVector()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(WeightedGroupedSkew({1, 1}), rsVectorG2);
  EXPECT_MATH_ERROR(WeightedGroupedSkew({0, 3}), rsStdDev);
  EXPECT_MATH_ERROR(WeightedGroupedKurtosis({2, 1}), rsVectorG3);
  EXPECT_MATH_ERROR(WeightedGroupedKurtosis({0, 4, 0}), rsStdDev);
}

}  // namespace

}  // namespace qorvex
