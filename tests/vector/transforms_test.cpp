#include "qorvex/vector/transforms.h"

#include <stdexcept>

#include "qorvex/vector/moving_average.h"
#include "qorvex/vector/polynomial.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

TEST(Transforms, SquaresKeepTheWidthOfEachElementType) {
  TQorSingleVector singles{0.1F};
  SquareVector(singles);
  EXPECT_EQ(singles[0], static_cast<float>(static_cast<Extended>(0.1F) * 0.1F));
  TQorLIntVector ints{65536, -3, 50000};
  const TQorLIntVector shared = ints;
  SquareVector(ints);
  EXPECT_EQ(shared,
            (TQorLIntVector{0, 9, static_cast<std::int32_t>(2'500'000'000 - 4'294'967'296)}));
  TQorLWordVector words{50000};
  SquareVector(words);
  EXPECT_EQ(words, (TQorLWordVector{2'500'000'000}));
  TQorInt64Vector longs{(1LL << 32) + 5, 50000};
  SquareVector(longs);
  EXPECT_EQ(longs, (TQorInt64Vector{25, 2'500'000'000 - 4'294'967'296}));
}

TEST(Transforms, ComputeInExtendedPrecision) {
  TQorFloatVector v{4, 2};
  SqrtVector(v);
  EXPECT_EQ(v, (TQorFloatVector{2, std::sqrt(2.0L)}));
  TQorDoubleVector inverse{3};
  InvVector(inverse);
  EXPECT_EQ(inverse[0], static_cast<double>(1 / 3.0L));
  TQorFloatVector e{std::exp(1.0L), 100, 8};
  TQorFloatVector ten{e[1]};
  TQorFloatVector two{e[2]};
  LnVector(e);
  EXPECT_EQ(e[0], 1);
  Log10Vector(ten);
  Log2Vector(two);
  EXPECT_EQ(ten[0], 2);
  EXPECT_EQ(two[0], 3);
}

TEST(Transforms, GuardsRaiseBeforeAnythingChanges) {
  TQorFloatVector v{4, -1};
  EXPECT_MATH_ERROR(SqrtVector(v), rsVectorNeg);
  EXPECT_MATH_ERROR(LnVector(v), rsVectorNotPos);
  EXPECT_MATH_ERROR(Log10Vector(v), rsVectorNotPos);
  EXPECT_MATH_ERROR(Log2Vector(v), rsVectorNotPos);
  EXPECT_EQ(v, (TQorFloatVector{4, -1}));
  TQorFloatVector nearly_zero{1, 1e-16L};
  EXPECT_MATH_ERROR(InvVector(nearly_zero), rsVectorZero);
  TQorSingleVector tiny{1e-30F};
  InvVector(tiny);
  EXPECT_EQ(tiny[0], static_cast<float>(1 / static_cast<Extended>(1e-30F)));
  TQorFloatVector slightly_negative{-1e-16L, 9};
  SqrtVector(slightly_negative);
  EXPECT_TRUE(std::isnan(slightly_negative[0]));
  EXPECT_EQ(slightly_negative[1], 3);

  TQorDoubleVector empty;
  for (void (*routine)(TQorDoubleVector&) :
       {SquareVector<double>, SqrtVector<double>, InvVector<double>, LnVector<double>,
        Log10Vector<double>, Log2Vector<double>}) {
    EXPECT_MATH_ERROR(routine(empty), rsVectorIsEmpty);
  }
  EXPECT_MATH_ERROR(LinearTransformVector(empty, 1, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(TransformVector(empty, nullptr), rsVectorIsEmpty);
}

TEST(Transforms, LinearAndCallerSupplied) {
  TQorInt64Vector longs{3, std::numeric_limits<std::int64_t>::max()};
  LinearTransformVector(longs, 2, 1);
  EXPECT_EQ(longs, (TQorInt64Vector{7, -1}));
  TQorSingleVector singles{0.1F};
  LinearTransformVector(singles, 3, 0.7F);
  EXPECT_EQ(singles[0], static_cast<float>(3.0L * 0.1F + 0.7F));
  TQorDoubleVector doubles{0x1p-53 + 0x1p-80};
  LinearTransformVector(doubles, 1, 1);
  EXPECT_EQ(doubles[0], 1) << "rounded to 80 bits first";

  TQorFloatVector v{1, 2, -3, 4};
  const auto negate_positive = [](Extended x) -> Extended {
    if (x < 0) throw std::domain_error("negative");
    return -x;
  };
  EXPECT_THROW(TransformVector(v, negate_positive), std::domain_error);
  EXPECT_EQ(v, (TQorFloatVector{-1, -2, -3, 4})) << "the earlier elements are already replaced";
}

TEST(MovingAverage, WritesAtTheOffsetOfEachWindow) {
  const TQorFloatVector v{1, 2, 3, 4};
  EXPECT_EQ(MovingAverage(v, 2, 1), (TQorFloatVector{0, 1.5L, 2.5L, 3.5L}));
  EXPECT_EQ(MovingAverage(v, 2, 0), (TQorFloatVector{1.5L, 2.5L, 3.5L, 0}));
  EXPECT_EQ(MovingAverage(v, 2, 9), MovingAverage(v, 2, 1));
  EXPECT_EQ(MovingAverage(v, 5, 0), (TQorFloatVector{0, 0, 0, 0}));
  EXPECT_EQ(MovingAverage(v, 4, 2), (TQorFloatVector{0, 0, 2.5L, 0}));
  EXPECT_MATH_ERROR(MovingAverage(TQorFloatVector(), 0, 0), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(MovingAverage(v, 0, 0), rsValueNotZero);
}

template <class T>
class MovingAverages : public ::testing::Test {};
TYPED_TEST_SUITE(MovingAverages, FloatTypes);

TYPED_TEST(MovingAverages, SumEveryWindowAfresh) {
  testing::Engine engine(3);
  for (std::size_t n = 1; n < 40; ++n) {
    const auto v = testing::RandomVector<TypeParam>(engine, n);
    for (std::uint32_t period = 1; period <= n; ++period) {
      const auto averages = MovingAverage(v, period, 0);
      for (std::size_t start = 0; start + period <= n; ++start) {
        Extended sum = 0;
        for (std::size_t i = start; i < start + period; ++i) sum += v[i];
        ASSERT_EQ(averages[start], static_cast<TypeParam>(sum / period))
            << n << ' ' << period << ' ' << start;
      }
    }
  }
}

TEST(Polynomial, AddsAscendingPowers) {
  EXPECT_EQ(QorPolynomial({1, 2, 3}, 2), 17);
  EXPECT_EQ(QorPolynomial({}, 2), 0);
  // Horner's scheme would add the last two terms exactly and keep their difference.
  EXPECT_EQ(QorPolynomial({0, 1, -0x1p-64L}, 0x1p64L), 0);
  const Extended x = 0.3L;
  EXPECT_EQ(QorPolynomial({0.1L, 0.7L, 0.9L, 0.4L}, x),
            ((0.1L + 0.7L * x) + 0.9L * (x * x)) + 0.4L * (x * x * x));
}

}  // namespace qorvex
