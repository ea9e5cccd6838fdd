#include "qorvex/vector/transforms.h"

#include <functional>
#include <stdexcept>

#include "qorvex/vector/moving_average.h"
#include "qorvex/vector/polynomial.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

// The vector after a call of the routine.
template <class T>
TQorVector<T> After(void (*routine)(TQorVector<T>&), TQorVector<T> v) {
  const TQorVector<T> shared = v;
  routine(v);
  return shared;
}

TEST(Transforms, SquaresKeepTheWidthOfEachElementType) {
  constexpr std::int32_t wrapped = static_cast<std::int32_t>(2'500'000'000 - 4'294'967'296);
  EXPECT_EQ(After<std::int32_t>(SquareVector, {65536, -3, 50000}), (TQorLIntVector{0, 9, wrapped}));
  EXPECT_EQ(After<std::int64_t>(SquareVector, {(1LL << 32) + 5, 50000}),
            (TQorInt64Vector{25, wrapped}));
}

TEST(Transforms, ComputeInExtendedPrecision) {
  EXPECT_EQ(After<Extended>(SqrtVector, {4, 2}), (TQorFloatVector{2, std::sqrt(2.0L)}));
  EXPECT_EQ(After<double>(InvVector, {2731})[0], static_cast<double>(1 / 2731.0L));
  EXPECT_EQ(After<Extended>(LnVector, {std::exp(1.0L)}), (TQorFloatVector{1}));
  EXPECT_EQ(After<Extended>(Log10Vector, {100}), (TQorFloatVector{2}));
  EXPECT_EQ(After<Extended>(Log2Vector, {8}), (TQorFloatVector{3}));
}

TEST(Transforms, ChecksRaiseBeforeAnythingChanges) {
  TQorFloatVector v{4, -1};
  EXPECT_MATH_ERROR(SqrtVector(v), rsVectorNeg);
  EXPECT_MATH_ERROR(LnVector(v), rsVectorNotPos);
  EXPECT_MATH_ERROR(Log10Vector(v), rsVectorNotPos);
  EXPECT_MATH_ERROR(Log2Vector(v), rsVectorNotPos);
  EXPECT_EQ(v, (TQorFloatVector{4, -1}));
  EXPECT_MATH_ERROR(After<Extended>(InvVector, {1, 1e-16L}), rsVectorZero);
  EXPECT_EQ(After<float>(InvVector, {1e-30F})[0], static_cast<float>(1.0L / 1e-30F));
  const TQorFloatVector roots = After<Extended>(SqrtVector, {-1e-16L, 9});
  EXPECT_TRUE(std::isnan(roots[0]) && roots[1] == 3) << "negative within the tolerance";

  TQorDoubleVector empty;
  for (void (*routine)(TQorDoubleVector&) :
       {SquareVector<double>, SqrtVector<double>, InvVector<double>, LnVector<double>,
        Log10Vector<double>, Log2Vector<double>}) {
    EXPECT_MATH_ERROR(routine(empty), rsVectorIsEmpty);
  }
  EXPECT_MATH_ERROR(LinearTransformVector(empty, 1, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(TransformVector(empty, std::negate<>()), rsVectorIsEmpty);
}

TEST(Transforms, WithConstantsAndWithAFunction) {
  TQorInt64Vector longs{3, std::numeric_limits<std::int64_t>::max()};
  LinearTransformVector(longs, 2, 1);
  EXPECT_EQ(longs, (TQorInt64Vector{7, -1}));
  TQorDoubleVector doubles{0x1p-53 + 0x1p-80};
  LinearTransformVector(doubles, 1, 1);
  EXPECT_EQ(doubles[0], 1) << "rounded to 80 bits first";

  TQorFloatVector v{1, 2, -3, 4};
  Extended (*const negate_positive)(Extended) = [](Extended x) {
    return x < 0 ? throw std::domain_error("negative") : -x;
  };
  EXPECT_THROW(TransformVector(v, negate_positive), std::domain_error);
  EXPECT_EQ(v, (TQorFloatVector{-1, -2, -3, 4})) << "the elements before are replaced";
}

double Halve(double x) noexcept {
  return x / 2;
}

TEST(Transforms, TakeCallablesWithState) {
  struct RunningSum {
    double operator()(double x) { return sum += x; }
    double sum = 0;
  } running_sum;
  TQorDoubleVector v{1, 2, 3, 4};
  TransformVector(v, running_sum);
  EXPECT_EQ(running_sum.sum, 10) << "the callable is not copied";
  EXPECT_EQ(v, (TQorDoubleVector{1, 3, 6, 10}));
  const auto subtract_first = [first = v[0]](Extended x) {
    return x > 6 ? throw std::domain_error("too large") : x - first;
  };
  EXPECT_THROW(TransformVector(v, subtract_first), std::domain_error);
  EXPECT_EQ(v, (TQorDoubleVector{0, 2, 5, 10})) << "the elements before are replaced";
  TransformVector(v, Halve);
  TransformVector(v, std::fabs);
  EXPECT_EQ(v, (TQorDoubleVector{0, 1, 2.5, 5}));
}

TEST(MovingAverage, WritesAtTheOffsetOfEachWindow) {
  const TQorFloatVector v{1, 2, 3, 4};
  EXPECT_EQ(MovingAverage(v, 2, 1), (TQorFloatVector{0, 1.5L, 2.5L, 3.5L}));
  EXPECT_EQ(MovingAverage(v, 2, 9), MovingAverage(v, 2, 1));
  EXPECT_EQ(MovingAverage(v, 5, 0), (TQorFloatVector{0, 0, 0, 0}));
  EXPECT_MATH_ERROR(MovingAverage(TQorFloatVector(), 0, 0), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(MovingAverage(v, 0, 0), rsValueNotZero);
}

template <class T>
class MovingAverages : public ::testing::Test {};
TYPED_TEST_SUITE(MovingAverages, FloatTypes);

TYPED_TEST(MovingAverages, SumEveryWindowSeparately) {
  testing::Engine engine(3);
  for (std::size_t n = 1; n < 40; ++n) {
    const auto v = testing::RandomVector<TypeParam>(engine, n);
    for (std::uint32_t period = 1; period <= n; ++period) {
      const auto averages = MovingAverage(v, period, 0);
      for (std::size_t start = 0; start + period <= n; ++start) {
        Extended sum = 0;
        for (std::size_t i = start; i < start + period; ++i) sum += v[i];
        ASSERT_EQ(averages[start], static_cast<TypeParam>(sum / period)) << n << ' ' << period;
      }
    }
  }
}

TEST(Polynomial, AddsAscendingPowers) {
  EXPECT_EQ(QorPolynomial({1, 2, 3}, 2), 17);
  EXPECT_EQ(QorPolynomial({}, 2), 0);
  // Horner's scheme would add the last two terms exactly and keep the result.
  EXPECT_EQ(QorPolynomial({0, 1, -0x1p-64L}, 0x1p64L), 0);
  const Extended x = 0.3L;
  EXPECT_EQ(QorPolynomial({0.1L, 0.7L, 0.9L, 0.4L}, x),
            ((0.1L + 0.7L * x) + 0.9L * (x * x)) + 0.4L * (x * x * x));
}

}  // namespace qorvex
