#include "qorvex/base/fractions.h"

#include <numeric>
#include <random>

#include "qorvex/base/elementary.h"
#include "support/test.h"

namespace qorvex {

std::string Mixed(Extended value, int decimals) {
  return Fraction2Str(Float2MixedFraction(value, decimals), fdMixed);
}

TEST(Float2MixedFraction, FindsTheFirstConvergentWithinTheDecimals) {
  EXPECT_EQ(Mixed(1 / 3.0L, 9), "1/3");
  EXPECT_EQ(Mixed(-7 / 3.0L, 9), "-2 1/3");
  EXPECT_EQ(Mixed(0.1L, 9), "1/10");
  EXPECT_EQ(Mixed(QorPi, 2), "3 1/7");
  EXPECT_EQ(Mixed(QorPi, 6), "3 16/113");
  EXPECT_EQ(Mixed(0.9999999999L, 9), "1");
  EXPECT_EQ(Mixed(-0.9999999999L, 9), "-1");
  EXPECT_EQ(Mixed(1e-12L, 9), "0");
  EXPECT_EQ(Mixed(2.4L, 0), "2");
  EXPECT_EQ(Mixed(2.6L, 0), "3");
  EXPECT_EQ(Mixed(1e30L, 9), "1000000000000000000024696061952");
  EXPECT_TRUE(std::isnan(Float2MixedFraction(kNaN, 9).whole));
  EXPECT_FALSE(std::signbit(Float2MixedFraction(-0.5L, 9).whole));
}

TEST(Float2MixedFraction, IsWithinHalfADecimalAndInLowestTerms) {
  std::mt19937_64 engine(7);
  for (int i = 0; i < 20'000; ++i) {
    const int decimals = static_cast<int>(engine() % 19);
    const Extended value = static_cast<Extended>(static_cast<std::int64_t>(engine())) * 0x1p-60L;
    const TQorMixedFraction fraction = Float2MixedFraction(value, decimals);
    // Rounding the sum of the parts adds half a unit in the last place to the bound.
    const Extended bound = 0.5L * std::pow(10.0L, -decimals) + std::fabs(value) * 0x1p-64L;
    ASSERT_LE(std::fabs(Fraction2Float(fraction) - value), bound) << value << " " << decimals;
    ASSERT_EQ(std::gcd(fraction.numerator, fraction.denominator), 1);
    ASSERT_LT(std::abs(fraction.numerator), fraction.denominator);
  }
}

TEST(Fractions, ParseAndPrint) {
  const struct {
    const char* text;
    const char* mixed;
    const char* improper;
  } cases[] = {
      {"2 1/3", "2 1/3", "7/3"},
      {"-7/5", "-1 2/5", "-7/5"},
      {" +3 ", "3", "3"},
      {"-2 \t1/3", "-2 1/3", "-7/3"},
      {"2/4", "1/2", "1/2"},
      {"0/5", "0", "0"},
      {"2 7/3", "4 1/3", "13/3"},
      {"-0", "0", "0"},
      {"9223372036854775807 1/3", "9223372036854775807 1/3", "9223372036854775807 1/3"},
  };
  for (const auto& [text, mixed, improper] : cases) {
    EXPECT_EQ(Fraction2Str(Str2Fraction(text), fdMixed), mixed) << text;
    EXPECT_EQ(Fraction2Str(Str2Fraction(text), fdImproper), improper) << text;
  }
  EXPECT_EQ(Fraction2Float(Str2Fraction("-1 3/4")), -1.75L);
}

TEST(Fractions, RefuseBadInput) {
  for (const char* text : {"", "1/0", "1/", "/2", "1 2", "2 -1/3", "1/-3", "1 /2", "1/2/3", "1.5",
                           "1/2x", "- 1", "a"}) {
    EXPECT_ERROR(Str2Fraction(text), EConvertError, rsNotAFraction);
  }
  EXPECT_ERROR(Str2Fraction("9223372036854775808"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Str2Fraction("9223372036854775807 3/2"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Fraction2Float({1, 1, 0}), EZeroDivide, rsZeroDivide);
}

}  // namespace qorvex
