#include "qorvex/base/special/scaled.h"

#include "qorvex/base/special/factorial.h"
#include "qorvex/base/special/tails.h"
#include "support/test.h"

namespace qorvex::special {

// Numbers whose exponents are beyond every format come back to it without losing digits.
TEST(Scaled, KeepsItsDigitsAcrossHugeExponents) {
  const Scaled huge(3, 1e17L);
  const Scaled tiny(0.125L, ExtendedPair(-1e17L, 1));
  EXPECT_EQ(huge.Value(), kInfinity);
  EXPECT_EQ(tiny.Value(), 0);
  EXPECT_EQ((huge * -2).Value(), -kInfinity);
  EXPECT_EQ((huge * tiny / Scaled(1, 1)).Value(), 0.375L);
  EXPECT_EQ((huge / huge).Value(), 1);
  EXPECT_EQ((SquareRoot(huge * huge) / huge).Value(), 1);
  EXPECT_EQ((huge + tiny - huge).Value(), 0);
  EXPECT_EQ((huge - huge * 0.75L - huge * 0.25L).Value(), 0);
  EXPECT_EQ(Scaled(1, -1e4000L).Log(), -1e4000L);
  EXPECT_EQ(Ln(huge / 3).hi, 1e17L);
  EXPECT_EQ((Power(3, 10000) / Power(3, 9998)).Value(), 9);
  EXPECT_EQ(Power(0.3L, 0).Value(), 1);
  // 2000! / 1998!, and Gamma(1.5).
  EXPECT_EQ((FactorialOf(2000) / FactorialOf(1998)).Value(), 2000 * 1999);
  EXPECT_EQ(FactorialOf(0.5L).Value(), 0.886226925452758013649083741671L);
}

TEST(Scaled, PassesWhatIsNotFinite) {
  const Scaled infinite(kInfinity);
  for (const Scaled& x : {Scaled(kNaN), Scaled(1, kNaN), infinite / infinite, Scaled(0) / Scaled(0),
                          Scaled(kNaN) * Scaled(0), Scaled(kNaN) + Scaled(1)}) {
    EXPECT_TRUE(std::isnan(x.Value()) && std::isnan(x.Log()) && std::isnan(x.LogOfRest()));
    EXPECT_FALSE(x.IsZero());
  }
  EXPECT_EQ((infinite * 2).Value(), kInfinity);
  EXPECT_EQ((Scaled(1) / infinite).Value(), 0);
  EXPECT_EQ((Scaled(1) / Scaled(0)).Value(), kInfinity);
  EXPECT_EQ(Scaled(1, -kInfinity).Value(), 0);
  EXPECT_EQ((Scaled(1, -kInfinity) + Scaled(2)).Value(), 2);
  EXPECT_EQ(Scaled(0).Log(), -kInfinity);
  EXPECT_TRUE(Scaled(0).IsZero() && std::isnan(Scaled(-1).Log()));
}

TEST(Scaled, LeavesTheRestOfATailWithItsDigits) {
  const Tails tails{Tail::kUpper, Scaled(1) - Scaled(0x1p-70L)};
  EXPECT_EQ(tails.Probability(Tail::kLower), 0x1p-70L);
  EXPECT_EQ(tails.LogProbability(Tail::kUpper), -0x1p-70L);
  const Tails far{Tail::kLower, Scaled(1, -1e6L)};
  EXPECT_EQ(far.Probability(Tail::kUpper), 1);
  EXPECT_EQ(far.LogProbability(Tail::kLower), -1e6L);
  EXPECT_EQ((Tails{Tail::kLower, 0x1p-80L}.LogProbability(Tail::kUpper)), -0x1p-80L);
  EXPECT_EQ((Tails{Tail::kLower, 1}.LogProbability(Tail::kUpper)), -kInfinity);
}

}  // namespace qorvex::special
