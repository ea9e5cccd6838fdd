#include "qorvex/vector/aggregates.h"

#include <tuple>

#include "qorvex/vector/extremes.h"
#include "qorvex/vector/sign_tests.h"
#include "support/test.h"

namespace qorvex {

// The smallest and the largest value, their indices, and whether each is unique.
using Extremes = std::tuple<Extended, Extended, std::uint32_t, std::uint32_t, bool, bool>;

Extremes MinMax(const TQorFloatVector& v) {
  Extremes extremes;
  std::apply([&](auto&... outputs) { MinMaxVector(v, outputs...); }, extremes);
  return extremes;
}

TEST(Extremes, AreTheFirstOfEqualOnes) {
  EXPECT_EQ(MinMax({3, 1, 1, 5, 5}), Extremes(1, 5, 1, 3, false, false));
  EXPECT_EQ(MinMax({2, 2, 1}), Extremes(1, 2, 2, 0, true, false));
  EXPECT_EQ(MinMax({7}), Extremes(7, 7, 0, 0, true, true));
  EXPECT_EQ(MinMax({1, 1, 5}), Extremes(1, 5, 0, 2, false, true));
  EXPECT_TRUE(std::signbit(MinVector(TQorFloatVector{-0.0L, 0.0L})));
  EXPECT_FALSE(std::signbit(MinVector(TQorFloatVector{0.0L, -0.0L})));
}

TEST(Extremes, NaNIsIgnoredUnlessItIsFirst) {
  EXPECT_EQ(MinVector(TQorFloatVector{2, kNaN, 1}), 1);
  EXPECT_EQ(MaxVector(TQorDoubleVector{2, std::nan(""), 3}), 3);
  EXPECT_TRUE(std::isnan(MaxVector(TQorFloatVector{kNaN, 1})));
}

TEST(Extremes, OfAnEmptyVectorRaiseAndLeaveTheOutputs) {
  EXPECT_MATH_ERROR(MinVector(TQorSIntVector()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(MaxVector(TQorFloatVector()), rsVectorIsEmpty);
  std::uint16_t value = 42;
  std::uint32_t index = 43;
  bool unique = true;
  EXPECT_MATH_ERROR(MinMaxVector(TQorWordVector(), value, value, index, index, unique, unique),
                    rsVectorIsEmpty);
  EXPECT_TRUE(value == 42 && index == 43);
}

TEST(Sums, IntegersWidenAndWrap) {
  EXPECT_EQ(SumVector(TQorLWordVector{4294967295, 1}), std::int64_t{1} << 32);
  EXPECT_EQ(SumVector(TQorInt64Vector{std::numeric_limits<std::int64_t>::max(), 1}),
            std::numeric_limits<std::int64_t>::min());
  EXPECT_MATH_ERROR(SumVector(TQorByteVector()), rsVectorIsEmpty);
}

TEST(Sums, FloatsAccumulateInExtendedInOrder) {
  EXPECT_EQ(SumVector(TQorSingleVector{1, 0x1p-60F}), 1 + 0x1p-60L);
  EXPECT_EQ(SumVector(TQorFloatVector{0x1p64L, 1, 1}), 0x1p64L) << "each 1 is lost";
  EXPECT_TRUE(std::signbit(SumVector(TQorFloatVector{-0.0L})));
}

// 50000 squared, in signed 32 bits.
constexpr std::int64_t kWrappedSquare = 2'500'000'000 - 4'294'967'296;

TEST(Sums, IntegerSquaresKeepTheirNarrowWidth) {
  EXPECT_EQ(SumSqVector(TQorByteVector{255}), -511);
  EXPECT_EQ(SumSqVector(TQorSIntVector{-128}), 16384);
  EXPECT_EQ(SumSqVector(TQorWordVector{256, 65535}), 1);
  EXPECT_EQ(SumSqVector(TQorWordVector{255}), 65025) << "zero-extended";
  EXPECT_EQ(SumSqVector(TQorSmallIntVector{200}), 40000 - 65536) << "sign-extended";
  EXPECT_EQ(SumSqVector(TQorLIntVector{65536, 50000}), kWrappedSquare);
  EXPECT_EQ(SumSqVector(TQorLWordVector{50000}), 2'500'000'000);
  EXPECT_EQ(SumSqVector(TQorInt64Vector{(std::int64_t{1} << 32) + 3}), 9);
  EXPECT_EQ(SumSqVector(TQorDoubleVector{0x1p31, 1}), 0x1p62L + 1);
}

TEST(Sums, SquaredDifferencesFromMeansAndOfTwoVectors) {
  EXPECT_EQ(SumSqDiffVector(TQorInt64Vector{1, 2, 4}, 2), 5);
  EXPECT_EQ(SumSqDiffVector(TQorInt64Vector{1, 2, 4}, 2.5), 4.75L);
  EXPECT_EQ(SumSqDiffVector(TQorInt64Vector{(1LL << 33) + 2}, -1), 9);
  EXPECT_MATH_ERROR(SumSqDiffVector(TQorLIntVector(), 0), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(SumSqDiffVector(TQorLIntVector(), 0.0), rsVectorIsEmpty);

  EXPECT_EQ(SumSqDiffVectors(TQorFloatVector{1, 2}, TQorFloatVector{3, 5}), 13);
  EXPECT_EQ(SumSqDiffVectors(TQorDoubleVector{1}, TQorDoubleVector{-0x1p-60}),
            (1 + 0x1p-60L) * (1 + 0x1p-60L));
  EXPECT_EQ(SumSqDiffVectors(TQorLWordVector{0}, TQorLWordVector{50000}), kWrappedSquare)
      << "signed, even for unsigned elements";
  EXPECT_MATH_ERROR(SumSqDiffVectors(TQorLIntVector(), TQorLIntVector{1}), rsSameDimensions);
  EXPECT_MATH_ERROR(SumSqDiffVectors(TQorLIntVector(), TQorLIntVector()), rsVectorIsEmpty);
}

TEST(Magnitude, IsTheEuclideanLengthWithoutNarrowSquares) {
  EXPECT_EQ(VectorMagnitude(TQorFloatVector{3, 4}), 5);
  EXPECT_EQ(VectorMagnitude(TQorFloatVector()), 0);
  EXPECT_EQ(VectorMagnitude(TQorSingleVector{1e30F}), static_cast<Extended>(1e30F));
  EXPECT_EQ(VectorMagnitude(TQorInt64Vector{1LL << 40}), 0x1p40L);
}

TEST(SignTests, HaveAToleranceExceptForInt64AndForVectorNonZeroOfSingles) {
  using Signs = std::tuple<bool, bool, bool, bool>;
  const auto signs = [](const auto& v) {
    return Signs(VectorZero(v), VectorNonZero(v), VectorPositive(v), VectorNonNegative(v));
  };
  constexpr float tiny = 1e-30F;
  EXPECT_EQ(signs(TQorFloatVector{0, tiny}), Signs(true, false, false, true));
  EXPECT_EQ(signs(TQorFloatVector{1, tiny}), Signs(false, false, false, true));
  EXPECT_EQ(signs(TQorFloatVector{1, 2}), Signs(false, true, true, true));
  EXPECT_EQ(signs(TQorFloatVector{kNaN}), Signs(false, true, false, true));
  EXPECT_EQ(signs(TQorDoubleVector{0, -1e-16}), Signs(true, false, false, true));
  EXPECT_EQ(signs(TQorDoubleVector{0, -1e-14}), Signs(false, false, false, false));
  EXPECT_EQ(signs(TQorSingleVector{1, tiny}), Signs(false, true, false, true));
  EXPECT_EQ(signs(TQorInt64Vector{1, 0}), Signs(false, false, false, true));
  EXPECT_EQ(signs(TQorInt64Vector{1}), Signs(false, true, true, true));
  EXPECT_EQ(signs(TQorInt64Vector{0, -1}), Signs(false, false, false, false));
  for (bool (*test)(VectorView<float>) :
       {VectorZero<float>, VectorNonZero<float>, VectorPositive<float>, VectorNonNegative<float>}) {
    EXPECT_MATH_ERROR(test({}), rsVectorIsEmpty);
  }
}

}  // namespace qorvex
