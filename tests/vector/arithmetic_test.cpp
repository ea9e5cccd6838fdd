#include "qorvex/vector/arithmetic.h"

#include "qorvex/base/elementary.h"
#include "support/test.h"

namespace qorvex {

TEST(Arithmetic, AddsAndSubtractsElementByElement) {
  EXPECT_EQ(AddVectors(TQorFloatVector{1, 2}, TQorFloatVector{3, 4}), (TQorFloatVector{4, 6}));
  TQorFloatVector a{1, 2};
  const TQorFloatVector shared = a;
  AddToVector(a, a);
  EXPECT_EQ(shared, (TQorFloatVector{2, 4}));
  SubtractFromVector(a, TQorFloatVector{1, 1});
  EXPECT_EQ(shared, (TQorFloatVector{1, 3}));
}

TEST(Arithmetic, IntegersWrapAndDoublesRoundTwice) {
  constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
  EXPECT_EQ(AddVectors(TQorLIntVector{largest}, TQorLIntVector{1}), (TQorLIntVector{-largest - 1}));
  EXPECT_EQ(SubtractVectors(TQorInt64Vector{smallest}, TQorInt64Vector{1}),
            (TQorInt64Vector{std::numeric_limits<std::int64_t>::max()}));
  // The exact result is just above the middle of two doubles. Rounded to 80 bits it is the middle,
  // which then rounds to even; an operation in double would round up.
  constexpr double half_and_more = 0x1p-53 + 0x1p-80;
  EXPECT_EQ(AddVectors(TQorDoubleVector{1}, TQorDoubleVector{half_and_more})[0], 1);
  EXPECT_EQ(SubtractVectors(TQorDoubleVector{1}, TQorDoubleVector{-half_and_more})[0], 1);
}

TEST(Arithmetic, LengthsAreCheckedBeforeEmptiness) {
  TQorFloatVector a{1};
  const TQorFloatVector b{1, 2};
  EXPECT_MATH_ERROR(AddVectors(a, b), rsSameDimensions);
  EXPECT_MATH_ERROR(SubtractVectors(a, b), rsSameDimensions);
  EXPECT_MATH_ERROR(AddToVector(a, b), rsSameDimensions);
  EXPECT_MATH_ERROR(SubtractFromVector(a, b), rsSameDimensions);
  EXPECT_MATH_ERROR(DotProdVectors(TQorFloatVector(), b), rsSameDimensions);
  EXPECT_MATH_ERROR(DotProdVectors(TQorFloatVector(), TQorFloatVector()), rsVectorIsEmpty);
  EXPECT_EQ(a, (TQorFloatVector{1}));
}

TEST(Arithmetic, DotProductKeepsTheWidthOfEachElementType) {
  EXPECT_EQ(DotProdVectors(TQorFloatVector{1, 2, 3}, TQorFloatVector{4, 5, 6}), 32);
  EXPECT_EQ(DotProdVectors(TQorLIntVector{65536, 50000}, TQorLIntVector{65536, 50000}),
            2'500'000'000 - 4'294'967'296);
  EXPECT_EQ(DotProdVectors(TQorInt64Vector{1LL << 40, 1LL << 40},
                           TQorInt64Vector{-(1LL << 20), 1LL << 40}),
            -(1LL << 60));
  EXPECT_EQ(
      DotProdVectors(TQorSingleVector{0x1p12F, 0x1p-20F}, TQorSingleVector{0x1p12F, 0x1p-18F}),
      0x1p24L + 0x1p-38L);
}

TEST(Arithmetic, AngleBetweenVectors) {
  const TQorFloatVector v{0.1L, 0.7L, 0.3L};
  EXPECT_EQ(AngleBetweenVectors(v, v), 0);
  EXPECT_EQ(AngleBetweenVectors(TQorLIntVector{1, 1}, TQorLIntVector{-1, -1}), QorPi);
  EXPECT_EQ(AngleBetweenVectors(TQorFloatVector{1e-20L, 0}, TQorFloatVector{1, 0}), 0)
      << "not zero";
  EXPECT_MATH_ERROR(AngleBetweenVectors(TQorFloatVector{0, 0}, TQorFloatVector{1}), rsMagZero);
  EXPECT_MATH_ERROR(AngleBetweenVectors(TQorFloatVector{1}, TQorFloatVector{1, 1}),
                    rsSameDimensions);
}

}  // namespace qorvex
