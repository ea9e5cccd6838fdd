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
  EXPECT_EQ(Mixed(QorPi, 2), "3 1/7");
  EXPECT_EQ(Mixed(QorPi, 6), "3 16/113");
  EXPECT_EQ(Mixed(0.9999999999L, 9), "1");
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

TEST(Fractions, AreReadAndWritten) {
  const char* const cases[][3] = {
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

// Checks in 128-bit integers that a value is the extended number nearest to n / d, ties to even.
bool IsNearest(Extended value, unsigned __int128 n, std::uint64_t d) {
  int exponent = 0;
  const auto digits = static_cast<std::uint64_t>(std::ldexp(std::frexp(value, &exponent), 64));
  // (digits - n / d * 2^places) * 2d. It is small, so it is correct modulo 2^128.
  const auto product = static_cast<unsigned __int128>(digits) * d;
  const auto twice_off = static_cast<__int128>(product - (n << (64 - exponent))) * 2;
  const auto off = twice_off < 0 ? -twice_off : twice_off;
  return off < d || (off == d && digits % 2 == 0);
}

TEST(Fraction2Float, IsTheNearestNumber) {
  std::mt19937_64 engine(8);
  const auto any = [&] { return static_cast<std::int64_t>(engine() >> (1 + engine() % 63)); };
  for (int i = 0; i < 100'000; ++i) {
    const std::int64_t whole = any();
    const std::int64_t d = std::max<std::int64_t>(any(), 1);
    const std::int64_t n = any() % d;
    const auto improper = static_cast<unsigned __int128>(whole) * static_cast<std::uint64_t>(d) +
                          static_cast<std::uint64_t>(n);
    if (improper == 0) continue;
    const Extended value = Fraction2Float({static_cast<Extended>(whole), n, d});
    ASSERT_TRUE(IsNearest(value, improper, static_cast<std::uint64_t>(d)));
    // The signs may differ, and the fraction may be improper.
    ASSERT_EQ(Fraction2Float({static_cast<Extended>(whole + 1), n - d, d}), value);
    ASSERT_EQ(Fraction2Float({static_cast<Extended>(-whole), n, -d}), -value);
  }
  EXPECT_EQ(Fraction2Float({0x1p63L, 2, 3}), 0x1p63L + 1);
  EXPECT_EQ(Fraction2Float({0x1p63L - 1, 0x7fffffffffffffff, 1}), 0x1p64L - 2);
  EXPECT_EQ(Fraction2Float({0.5L, 1, 4}), 0.75L);
  EXPECT_EQ(Fraction2Float({-kInfinity, 1, 4}), -kInfinity);
}

TEST(Fractions, RefuseInvalidInput) {
  for (const char* text : {"", "1/0", "1/", "/2", "1 2", "2 -1/3", "1/-3", "1 /2", "1/2/3", "1.5",
                           "1/2x", "- 1", "a"}) {
    EXPECT_ERROR(Str2Fraction(text), EConvertError, rsNotAFraction);
  }
  EXPECT_ERROR(Str2Fraction("9223372036854775808"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Str2Fraction("9223372036854775807 3/2"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Fraction2Float({1, 1, 0}), EZeroDivide, rsZeroDivide);
}

}  // namespace qorvex
