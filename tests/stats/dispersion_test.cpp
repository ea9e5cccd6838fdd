#include "qorvex/stats/dispersion.h"

#include "qorvex/stats/location.h"
#include "qorvex/vector/building.h"
#include "support/test.h"

namespace qorvex {

template <class T>
class Estimators : public ::testing::Test {};
TYPED_TEST_SUITE(Estimators, WideTypes);

TYPED_TEST(Estimators, FiguresOfASmallSampleAndErrors) {
  using Vector = TQorVector<TypeParam>;
  const struct {
    Extended (*alone)(VectorView<TypeParam>);
    void (*with_mean)(VectorView<TypeParam>, Extended& spread, Extended& mean);
    bool sample;
    Extended expected;
  } estimators[] = {
      {SampleVariance, SampleVarianceAndMean, true, 32 / 7.0L},
      {PopulationVariance, PopulationVarianceAndMean, false, 4},
      {SampleStdDev, SampleStdDevAndMean, true, std::sqrt(32 / 7.0L)},
      {PopulationStdDev, PopulationStdDevAndMean, false, 2},
  };
  const Vector v{2, 4, 4, 4, 5, 5, 7, 9};
  for (const auto& [alone, with_mean, sample, expected] : estimators) {
    Extended spread = 41;
    Extended mean = 42;
    EXPECT_MATH_ERROR(alone({}), rsVectorIsEmpty);
    EXPECT_MATH_ERROR(with_mean({}, spread, mean), rsVectorIsEmpty);
    if (sample) {
      EXPECT_MATH_ERROR(alone({7}), rsVectorG1);
      EXPECT_MATH_ERROR(with_mean({7}, spread, mean), rsVectorG1);
    }
    EXPECT_TRUE(spread == 41 && mean == 42);
    if (!sample) {
      EXPECT_EQ(alone({7}), 0);
      with_mean({7}, spread, mean);
      EXPECT_TRUE(spread == 0 && mean == 7);
    }
    EXPECT_EQ(alone(v), expected);
    with_mean(v, spread, mean);
    EXPECT_EQ(spread, expected);
    EXPECT_EQ(mean, 5);
  }
  EXPECT_EQ(QorMean(v), 5);
  EXPECT_MATH_ERROR(QorMean(Vector()), rsVectorIsEmpty);
  EXPECT_EQ(SampleVariance(Vector{1, 2}), 0.5L) << "the mean is not truncated";
}

TEST(Dispersion, TwoPassesKeepDigitsThatCancelInOnePass) {
  const TQorFloatVector v{1e12L + 1, 1e12L + 2, 1e12L + 3};
  EXPECT_EQ(SampleVariance(v), 1);
  Extended variance = 0;
  Extended mean = 0;
  SampleVarianceAndMean(v, variance, mean);
  EXPECT_NE(variance, 1);
  EXPECT_EQ(mean, 1e12L + 2);
  // Mean 1000.000030517578125 lies half way between two singles.
  EXPECT_EQ(SampleVariance(TQorSingleVector{1000.0F, 1000.00006103515625F}),
            0x1p-14L * 0x1p-14L / 2);
}

TEST(Dispersion, IntegerSumsWrapAroundAndNegativeVariancesHaveNoRoot) {
  const std::int64_t huge = std::int64_t{1} << 62;
  EXPECT_EQ(QorMean(TQorInt64Vector{huge, huge}), -0x1p62L) << "the int64 sum wraps around";
  EXPECT_EQ(QorMean(TQorFloatVector{0x1p62L, 0x1p62L}), 0x1p62L);
  // The sum of squares wraps around to 0; the sum does not wrap around.
  const TQorInt64Vector squares_wrap{std::int64_t{1} << 32, std::int64_t{1} << 32};
  Extended spread = 41;
  Extended mean = 42;
  EXPECT_ERROR(PopulationStdDevAndMean(squares_wrap, spread, mean), EInvalidOp, rsInvalidOp);
  EXPECT_TRUE(spread == 41 && mean == 42);
  PopulationVarianceAndMean(squares_wrap, spread, mean);
  EXPECT_EQ(spread, -0x1p64L);
}

// The sum is squared before it is divided, and all sums are wider than the elements.
TYPED_TEST(Estimators, OnePassFormulaHasItsOrderOfOperations) {
  constexpr TypeParam divisor = FloatElement<TypeParam> ? 7 : 1;
  const TQorVector<TypeParam> v{200'000 / divisor, 17 / divisor, 99'999 / divisor, 5 / divisor};
  Extended sum = 0;
  Extended sum_sq = 0;
  for (const Extended x : v) sum += x;
  for (const Extended x : v) sum_sq += x * x;
  Extended variance = 0;
  Extended mean = 0;
  SampleVarianceAndMean(v, variance, mean);
  EXPECT_EQ(variance, (sum_sq - sum * sum / 4) / 3);
  EXPECT_EQ(mean, sum / 4);
}

TEST(Dispersion, StandardiseWorksInPlaceAndRefusesOnlyAnExactZero) {
  TQorFloatVector v{2, 4, 4, 4, 5, 5, 7, 9};
  const TQorFloatVector shared = v;
  TQorFloatVector sample = CopyVector(v);
  Standardise(v, 100, 15, true);
  EXPECT_EQ(shared, (TQorFloatVector{77.5L, 92.5L, 92.5L, 92.5L, 100, 100, 115, 130}));
  Standardise(sample, 0, 1, false);
  EXPECT_EQ(sample[7], 4 / std::sqrt(32 / 7.0L));

  TQorFloatVector pair{1, 2};
  EXPECT_MATH_ERROR(Standardise(pair, 0, 0, 0, 1), rsStdDev);
  EXPECT_EQ(pair, (TQorFloatVector{1, 2}));
  Standardise(pair, 1, 1e-20L, 10, 4);
  EXPECT_EQ(pair, (TQorFloatVector{10, 4 / 1e-20L + 10}));
  TQorFloatVector empty;
  TQorFloatVector one{1};
  EXPECT_MATH_ERROR(Standardise(empty, 0, 0, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(Standardise(one, 0, 1, false), rsVectorG1);
  EXPECT_MATH_ERROR(Standardise(one, 0, 1, true), rsStdDev);
}

}  // namespace qorvex
