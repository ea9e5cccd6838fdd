#include "qorvex/base/comparisons.h"

#include "qorvex/base/elementary.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {

TEST(Tolerance, ZeroAndSignTestsAreAbsolute) {
  const testing::KeptTolerance kept;
  EXPECT_EQ(QorTolerance, 1e-15L);
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

TEST(Tolerance, SameFloatIsRelativeBeyondOneAndUsesTheTypesOwnPrecision) {
  EXPECT_TRUE(SameFloat(1.0L, 1.0L + 0.9e-15L));
  EXPECT_FALSE(SameFloat(1.0L, 1.0L + 2e-15L));
  EXPECT_TRUE(SameFloat(1e6L, 1e6L + 0.9e-9L));
  EXPECT_TRUE(SameFloat(1e-20L, -1e-20L)) << "absolute near zero";
  EXPECT_TRUE(SameFloat(1.0F, 1.0F + 3 * std::numeric_limits<float>::epsilon()));
  EXPECT_FALSE(SameFloat(1.0F, 1.0F + 5 * std::numeric_limits<float>::epsilon()));
  EXPECT_FALSE(SameFloat(1.0, 1.0 + 5 * std::numeric_limits<double>::epsilon()));
  EXPECT_TRUE(SameFloat(0.5L, 0.5)) << "mixed types compare in the wider one";
  EXPECT_FALSE(SameFloat(0.1L, 0.1F));
  EXPECT_TRUE(NotSameFloat(1, 2));
}

TEST(Tolerance, SameFloatTakesInfinitiesAndNaNExactly) {
  const testing::KeptTolerance kept;
  EXPECT_TRUE(SameFloat(kInfinity, kInfinity));
  EXPECT_FALSE(SameFloat(kInfinity, -kInfinity));
  EXPECT_FALSE(SameFloat(kInfinity, std::numeric_limits<Extended>::max()));
  EXPECT_FALSE(SameFloat(kNaN, kNaN));
  QorTolerance = kNaN;
  EXPECT_TRUE(SameFloat(1.0L, 1.0L + 2 * std::numeric_limits<Extended>::epsilon()));
  EXPECT_FALSE(SameFloat(1.0L, 1.0L + 1e-16L)) << "a tolerance that is no number leaves rounding";
}

TEST(Elementary, LogarithmsPowersAndArcCosine) {
  EXPECT_EQ(QorLog2(0x1p-100L), -100);
  EXPECT_EQ(QorLog10(1e20L), 20);
  EXPECT_EQ(QorLog2(0), -kInfinity);
  EXPECT_TRUE(std::isnan(QorLog10(-1)));

  EXPECT_EQ(XtoY(0, 0), 1);
  EXPECT_EQ(XtoY(-2, 3), -8);
  EXPECT_EQ(XtoY(-2, -3), -0.125L);
  EXPECT_EQ(XtoY(1.1L, 4), 1.1L * 1.1L * 1.1L * 1.1L) << "std::pow rounds to a neighbour";
  EXPECT_EQ(XtoY(2, 100), 0x1p100L);
  EXPECT_EQ(XtoY(4, 0.5L), 2);
  EXPECT_TRUE(std::isnan(XtoY(-4, 0.5L)));
  EXPECT_EQ(XtoY(0, -2), kInfinity);

  EXPECT_EQ(QorArcCos(-1), QorPi);
  EXPECT_EQ(QorArcCos(1 + 1e-16L), 0);
  EXPECT_EQ(QorArcCos(-1 - 1e-16L), QorPi);
  EXPECT_TRUE(std::isnan(QorArcCos(1 + 1e-14L)));
  EXPECT_EQ(MinXY(2, 1), 1);
  EXPECT_EQ(MinXY(2.0L, 3), 2);
  EXPECT_EQ(QorPi, std::acos(-1.0L));
}

}  // namespace qorvex
