#include "qorvex/base/fitted_text.h"

#include <random>

#include "qorvex/base/text.h"
#include "support/test.h"

namespace qorvex {
namespace {

// A decimal text taken apart, by other means than the library's: sign, digits and the power of ten
// of the last digit.
struct Parts {
  bool negative = false;
  bool exponent_form = false;
  __int128 digits = 0;
  int significant = 0;
  int decimals = 0;
  int leading_decimals = 0;
  int unit = 0;

  explicit Parts(std::string text) {
    negative = text.front() == '-';
    if (const auto e = text.find('e'); e != std::string::npos) {
      exponent_form = true;
      unit = std::stoi(text.substr(e + 1));
      text.resize(e);
    }
    bool after_point = false;
    for (const char c : text) {
      if (c == '.') after_point = true;
      if (c < '0' || c > '9') continue;
      digits = digits * 10 + (c - '0');
      if (after_point) ++decimals;
      if (digits != 0 && ++significant == 1) leading_decimals = decimals;
    }
    unit -= decimals;
  }
};

// |value - digits 10^unit| <= 10^unit / 2 in quadruple precision, whose own rounding is allowed
// for.
bool IsRounded(Extended value, const Parts& parts) {
  using Quad = __float128;
  Quad scaled = std::fabs(value);
  for (int i = 0; i < parts.unit; ++i) scaled /= 10;
  for (int i = 0; i > parts.unit; --i) scaled *= 10;
  const Quad error = scaled - static_cast<Quad>(parts.digits);
  const Quad slack = scaled * 0x1p-100L;
  return (error < 0 ? -error : error) <= Quad(0.5) + slack;
}

struct Case {
  Extended value;
  FloatDigits digits;
};

Case RandomCase(std::mt19937_64& engine) {
  const auto mantissa = static_cast<Extended>(static_cast<std::int64_t>(engine()));
  Extended value = mantissa * std::pow(10.0L, -19 + static_cast<int>(engine() % 30) - 12);
  // Whole numbers and short decimals, of every sign; carries.
  if (engine() % 4 == 0) value = std::round(value);
  if (engine() % 4 == 0) value = std::round(mantissa / 0x1p50L) / 100;
  if (engine() % 8 == 0) {
    value = std::pow(10.0L, static_cast<int>(engine() % 9) - 4) * (1 - 0x1p-20L);
  }
  return {value,
          {.decimals = static_cast<int>(engine() % 12),
           .all = engine() % 4 == 0,
           .trim = engine() % 2 == 0}};
}

std::string Fixed(const Case& c, int decimals) {
  return FloatText(c.value, {.decimals = decimals, .trim = c.digits.trim});
}

std::string Exponent(const Case& c, int decimals) {
  char plain[64];
  std::snprintf(plain, sizeof plain, "%.*Le", decimals, c.value);
  const std::string text = plain;
  const auto e = text.find('e');
  std::string mantissa = text.substr(0, e);
  if (c.digits.trim) mantissa = StripTChStr(mantissa, '0');
  return mantissa + 'e' + std::to_string(std::stoi(text.substr(e + 1)));
}

TEST(FittedFloatText, IsTheValueRoundedToAllTheDigitsThatFitOrTheMark) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937_64 engine(seed);
  for (int i = 0; i < 3'000; ++i) {
    const Case c = RandomCase(engine);
    const std::string whole = FloatText(c.value, c.digits);
    const Parts all(whole);
    for (std::size_t length = 0; length <= 30; ++length) {
      const std::string text = FittedFloatText(c.value, c.digits, length);
      SCOPED_TRACE(whole + " in " + std::to_string(length) + ": " + text);
      ASSERT_LE(text.size(), length);
      if (whole.size() <= length) {
        ASSERT_EQ(text, whole);
        continue;
      }
      const bool mark = text == kNoRoom.substr(0, length);
      if (!mark) {
        const Parts parts(text);
        ASSERT_TRUE(IsRounded(c.value, parts));
        ASSERT_EQ(parts.negative, c.value < 0 && parts.digits != 0);
        ASSERT_EQ(parts.digits == 0, all.digits == 0) << "a number does not become zero";
        ASSERT_LE(parts.significant, all.significant);
        if (!parts.exponent_form) {
          for (int more = parts.decimals + 1; more < all.decimals; ++more) {
            ASSERT_TRUE(Fixed(c, more).size() > length || Fixed(c, more) == text);
          }
          continue;
        }
        for (int more = parts.decimals + 1; more < all.significant; ++more) {
          ASSERT_TRUE(Exponent(c, more).size() > length || Exponent(c, more) == text);
        }
      } else if (all.digits != 0) {
        ASSERT_GT(Exponent(c, 0).size(), length);
      }
      // No fixed text that shows the first digit has room.
      if (all.exponent_form) continue;
      ASSERT_GT(Fixed(c, all.leading_decimals).size(), length);
    }
  }
}

TEST(FittedFloatText, GivesUpDecimalsThenTakesExponentFormThenTheMark) {
  const FloatDigits four;
  const FloatDigits all{.all = true};
  const FloatDigits trim{.decimals = 6, .trim = true};
  const struct {
    Extended value;
    FloatDigits digits;
    std::size_t length;
    const char* text;
  } cases[] = {
      {-7654321.5L, four, 13, "-7654321.5000"},
      {-7654321.5L, four, 12, "-7654321.500"},
      {-7654321.5L, four, 9, "-7654322"},
      {-7654321.5L, four, 7, "-7.65e6"},
      {-7654321.5L, four, 5, "-8e6"},
      {-7654321.5L, four, 3, "###"},
      {9.995L, {.decimals = 3}, 4, "9.99"},
      {9.9951L, four, 4, "10.0"},
      {999999.6L, four, 7, "1000000"},
      {999999.6L, four, 6, "1.00e6"},
      {9.996e-10L, all, 8, "1.00e-9"},
      {0.00012345L, {.decimals = 8}, 6, "0.0001"},
      {0.00012345L, {.decimals = 8}, 5, "1e-4"},
      {0.00006L, four, 5, "6e-5"},
      {0.00001L, four, 5, "0.000"},
      {-0.00001L, four, 6, "0.0000"},
      {-0.0L, all, 5, "0"},
      {-0.4L, {.decimals = 1}, 3, "###"},
      {0.5L, {.decimals = 0}, 1, "0"},
      {2.5L, {.decimals = 4, .trim = true}, 3, "2.5"},
      {1.29996L, trim, 5, "1.3"},
      {1e-5L * 1.2999999L, {.decimals = 30, .trim = true}, 6, "1.3e-5"},
      {1e4000L, all, 6, "1e4000"},
      {1e4000L, {.trim = true}, 7, "1e4000"},
      {-1e-9L, all, 6, "-1e-9"},
      {-2.5e-10L, all, 8, "-2.5e-10"},
      {0x1p64L, four, 20, "18446744073709551616"},
      {0x1p64L, four, 10, "1.84467e19"},
      {1e-200L, {.decimals = 255}, 7, "1e-200"},
      {-kInfinity, four, 4, "-inf"},
      {-kInfinity, four, 3, "###"},
      {kInfinity, four, 2, "##"},
      {kNaN, four, 3, "nan"},
      {kNaN, four, 0, ""},
  };
  for (const auto& [value, digits, length, text] : cases) {
    EXPECT_EQ(FittedFloatText(value, digits, length), text) << value << " in " << length;
  }
}

}  // namespace
}  // namespace qorvex
