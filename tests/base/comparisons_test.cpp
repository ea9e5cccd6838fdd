#include "qorvex/base/comparisons.h"

#include "qorvex/base/elementary.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {

TEST(Tolerance, ZeroAndSignTestsAreAbsolute) {
  const testing::KeptTolerance kept;
  EXPECT_TRUE(FloatIsZero(1e-15L));
  EXPECT_TRUE(FloatIsNotZero(1.1e-15L));
  EXPECT_FALSE(FloatIsPositive(1e-15L));
  EXPECT_TRUE(FloatIsPositive(2e-15L));
  EXPECT_TRUE(FloatIsNegative(-2e-15L));
  EXPECT_FALSE(FloatIsNegative(-1e-15L));
  EXPECT_TRUE(FloatIsNotZero(kNaN));
  EXPECT_FALSE(FloatIsPositive(kNaN) || FloatIsNegative(kNaN));
  QorTolerance = 0.1L;
  EXPECT_TRUE(FloatIsZero(0.05L));
}

template <class T>
class SameFloatOf : public ::testing::Test {};
TYPED_TEST_SUITE(SameFloatOf, FloatTypes, );

TYPED_TEST(SameFloatOf, IsRelativeAtEverySize) {
  using T = TypeParam;
  using Limits = std::numeric_limits<T>;
  constexpr T eps = Limits::epsilon();
  const testing::KeptTolerance kept;
  const std::tuple<Extended, T, T, bool> cases[] = {
      {0, 1, 1 + 3 * eps, true},
      {0, 1, 1 + 5 * eps, false},
      {1e-15L, 1, T(1 + 0.9e-15L), true},
      {1e-15L, 1, T(1 + 2e-15L), 4 * eps > 2e-15L},
      {0.1L, 1, T(0.9L) + eps, true},
      {0.1L, 1, T(0.89L), false},
      {0.6L, 1, 0.5L, true},
      {1, 1, 0, true},
      {1, 1, -eps, false},
      {kNaN, 1, 1 + 3 * eps, true},
      {kNaN, 1, 1 + 5 * eps, false},
  };
  for (const auto& [tolerance, x, y, same] : cases) {
    QorTolerance = tolerance;
    for (int exponent = Limits::min_exponent - Limits::digits; exponent < Limits::max_exponent;
         ++exponent) {
      const T a = std::ldexp(x, exponent);
      const T b = std::ldexp(y, exponent);
      if (std::ldexp(a, -exponent) != x || std::ldexp(b, -exponent) != y) continue;
      ASSERT_EQ(SameFloat(a, b), same) << tolerance << ": " << x << ' ' << y << " e" << exponent;
      ASSERT_EQ(SameFloat(b, a), same);
    }
  }
  EXPECT_TRUE(SameFloat(Limits::infinity(), Limits::infinity()));
  EXPECT_TRUE(SameFloat(T(0), T(-0.0)));
  for (const Extended tolerance : {1e-15L, kInfinity}) {
    QorTolerance = tolerance;
    EXPECT_FALSE(SameFloat(Limits::infinity(), -Limits::infinity()));
    EXPECT_FALSE(SameFloat(Limits::infinity(), Limits::max()));
    EXPECT_FALSE(SameFloat(Limits::quiet_NaN(), Limits::quiet_NaN()));
    EXPECT_FALSE(SameFloat(Limits::quiet_NaN(), T(1)));
  }
}

TEST(Tolerance, SameFloatComparesMixedTypesInTheWiderOne) {
  EXPECT_TRUE(SameFloat(0.5L, 0.5));
  EXPECT_FALSE(SameFloat(0.1L, 0.1F));
  EXPECT_TRUE(NotSameFloat(1, 2));
}

TEST(Elementary, LogarithmsPowersAndArcCosine) {
  EXPECT_EQ(QorLog2(0x1p-100L), -100);
  EXPECT_EQ(QorLog10(1e20L), 20);
  EXPECT_EQ(XtoY(0, 0), 1);
  EXPECT_EQ(XtoY(-2, -3), -0.125L);
  EXPECT_EQ(XtoY(1.1L, 4), 1.1L * 1.1L * 1.1L * 1.1L) << "std::pow rounds to a neighbour";
  EXPECT_EQ(XtoY(4, 0.5L), 2);
  EXPECT_EQ(QorArcCos(-1), QorPi);
  EXPECT_EQ(QorArcCos(1 + 1e-16L), 0);
  EXPECT_EQ(QorArcCos(-1 - 1e-16L), QorPi);
  EXPECT_TRUE(std::isnan(QorArcCos(1 + 1e-14L)));
  EXPECT_EQ(MinXY(2, 1), 1);
  EXPECT_EQ(MinXY(2.0L, 3), 2);
}

}  // namespace qorvex
