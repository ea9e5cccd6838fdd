#include "qorvex/base/text.h"

#include <cstdio>
#include <cstdlib>
#include <random>

#include "qorvex/base/vector_text.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::SameBits;

TEST(Str2Float, RoundsCorrectly) {
  const std::pair<const char*, Extended> cases[] = {
      {"0.1", 0.1L},
      {"  -2.5e3\t", -2500},
      {"+.5", 0.5L},
      {"5.", 5},
      {"00000000000000000000000000000000000000001.5", 1.5L},
      {"1E-27", 1e-27L},
      {"18446744073709551617", 18446744073709551617.0L},
      {"1.18973149535723176502e+4932", std::numeric_limits<Extended>::max()},
      {"3.6451995318824746025e-4951", std::numeric_limits<Extended>::denorm_min()},
      {"1e-5000", 0},
      {"inf", kInfinity},
      {"-Infinity", -kInfinity},
      // Halfway between 1 and the next number, which rounds to even, and just above.
      {"1.0000000000000000000542101086242752217003726400434970855712890625", 1},
      {"1.00000000000000000005421010862427522170037264004349708557128906250001",
       1 + std::numeric_limits<Extended>::epsilon()},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(Str2Float(text), value) << text;
  EXPECT_TRUE(std::signbit(Str2Float("-0")));
  EXPECT_TRUE(std::isnan(Str2Float("NaN")));
}

TEST(Str2Float, RefusesOtherTextAndNamesIt) {
  for (const char* text : {"", "  ", ".", "-", "e5", "1e", "1e+", "1.2.3", "1,5", "0x10", "1 2",
                           "--1", "+-1", "nan(1)", "infinit", "12a", "1_000",
                           "\xE2\x88\x92"
                           "1"}) {
    EXPECT_ERROR(Str2Float(text), EConvertError, rsNotANumber);
  }
  EXPECT_ERROR(Str2Float("1e4933"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Str2Float("-1e99999999999999999999"), EConvertError, rsNumberTooLarge);
  try {
    static_cast<void>(Str2Float("12 apples"));
    FAIL();
  } catch (const EConvertError& error) {
    EXPECT_STREQ(error.what(), "\"12 apples\" is not a number");
  }
  EXPECT_LT(std::strlen(EConvertError(rsNotANumber, std::string(1000, 'x')).what()), 100U);
}

TEST(Float2Str, RoundTrips) {
  std::mt19937_64 engine(20261121);
  for (int i = 0; i < 20'000; ++i) {
    const Extended value =
        std::ldexp(static_cast<Extended>(engine()), static_cast<int>(engine() % 32'830) - 16'510);
    ASSERT_EQ(Str2Float(Float2Str(value)), value);
  }
}

// Random digits of any number; integers and halves, which are halfway between two values if they
// have one bit more than the mantissa of the type, and numbers just beside them.
std::string RandomNumber(std::mt19937_64& engine) {
  std::string text = engine() % 3 == 0 ? "-" : "";
  const auto append_digits = [&] {
    const bool zeros = engine() % 4 == 0;
    for (std::size_t n = engine() % (engine() % 4 == 0 ? 50 : 12); n > 0; --n)
      text += zeros && engine() % 8 != 0 ? '0' : static_cast<char>('0' + engine() % 10);
  };
  if (engine() % 3 == 0) {
    text += Int2EStr(engine() >> engine() % 64);
    constexpr const char* ends[] = {"", ".5", ".50000", ".5000000000000000000000001",
                                    ".4999999999999999999999999"};
    text += ends[engine() % 5];
  } else {
    text += static_cast<char>('0' + engine() % 10);
    append_digits();
    if (engine() % 4 != 0) text += '.', append_digits();
    if (engine() % 3 == 0)
      text += 'e' + Int2EStr(static_cast<int>(engine() % 140) - (engine() % 9 == 0 ? 5000 : 70));
  }
  return text;
}

TEST(Str2Float, AgreesWithTheCLibrary) {
  std::mt19937_64 engine(20261122);
  for (int i = 0; i < 300'000; ++i) {
    const std::string text = RandomNumber(engine);
    ASSERT_TRUE(SameBits(Str2Float(text), std::strtold(text.c_str(), nullptr))) << text;
    const double as_double = std::strtod(text.c_str(), nullptr);
    const float as_float = std::strtof(text.c_str(), nullptr);
    if (!std::isfinite(as_float)) continue;
    ASSERT_TRUE(SameBits(Str2Vector<double>('[' + text + ']')[0], as_double)) << text;
    ASSERT_TRUE(SameBits(Str2Vector<float>('[' + text + ']')[0], as_float)) << text;
  }
}

TEST(Float2EStr, AgreesWithTheCLibrary) {
  std::mt19937_64 engine(20261123);
  for (int i = 0; i < 150'000; ++i) {
    const int decimals = static_cast<int>(engine() % (engine() % 8 == 0 ? 120 : 24));
    Extended value = std::ldexp(static_cast<Extended>(engine() >> engine() % 64),
                                -static_cast<int>(engine() % 140));
    if (engine() % 4 == 0) value = (std::floor(value) + 0.5L) / std::pow(10.0L, decimals);
    if (engine() % 4 == 0) value = std::nextafter(std::round(value), 0.0L);
    char expected[300];
    std::snprintf(expected, sizeof expected, "%.*Lf", decimals, value);
    ASSERT_EQ(Float2EStr(value, decimals), expected);
    const bool is_zero = std::strspn(expected, "0.") == std::strlen(expected);
    ASSERT_EQ(Float2EStr(-value, decimals), std::string(is_zero ? "" : "-") + expected);
  }
}

TEST(Float2EStr, RoundsTheExactValueHalfToEven) {
  EXPECT_EQ(Float2EStr(2.5L, 0), "2");
  EXPECT_EQ(Float2EStr(-0.0001L, 2), "0.00") << "no sign on a zero";
  EXPECT_EQ(Float2EStr(-1234.5L, 3), "-1234.500");
  EXPECT_EQ(Float2EStr(7, -3), "7");
  EXPECT_EQ(Float2EStr(kNaN, 2), "nan");
  EXPECT_EQ(Float2EStr(-kInfinity, 2), "-inf");
  EXPECT_EQ(Str2Float(Float2EStr(0x1p16383L, 300)), 0x1p16383L);
  EXPECT_EQ(Int2EStr(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(Int2EStr(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
  EXPECT_EQ(Int2EStr(std::int8_t{-5}), "-5");
}

TEST(StripTChStr, StripsDecimalsAndAPointThatIsLeftAtTheEnd) {
  EXPECT_EQ(StripTChStr("2.50000", '0'), "2.5");
  EXPECT_EQ(StripTChStr("3.000", '0'), "3");
  EXPECT_EQ(StripTChStr("100", '0'), "100") << "these are not decimals";
  EXPECT_EQ(StripTChStr("1.e10", '0'), "1.e10");
  EXPECT_EQ(StripTChStr("abcxx", 'x'), "abc");
  EXPECT_EQ(StripTChStr("xx", 'x'), "");
}

}  // namespace qorvex
