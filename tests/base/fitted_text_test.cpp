#include "qorvex/base/fitted_text.h"

#include <algorithm>
#include <cctype>
#include <random>
#include <tuple>

#include "qorvex/base/text.h"
#include "support/test.h"

namespace qorvex {
namespace {

struct Case {
  Extended value;
  FloatDigits digits;
};

Case RandomCase(std::mt19937_64& engine) {
  const auto mantissa = static_cast<Extended>(static_cast<std::int64_t>(engine()));
  Extended value = mantissa * std::pow(10.0L, -19 + static_cast<int>(engine() % 30) - 12);
  // Whole numbers, numbers with two decimals, and numbers just below a power of ten.
  if (engine() % 4 == 0) value = std::round(value);
  if (engine() % 4 == 0) value = std::round(mantissa / 0x1p50L) / 100;
  if (engine() % 8 == 0) {
    value = std::pow(10.0L, static_cast<int>(engine() % 9) - 4) * (1 - 0x1p-20L);
  }
  // A zero has no sign.
  return {value + 0.0L,
          {.decimals = static_cast<int>(engine() % 12),
           .all = engine() % 4 == 0,
           .trim = engine() % 2 == 0,
           .format = static_cast<TQorNumberFormat>(engine() % 4),
           .significant = 1 + static_cast<int>(engine() % 12)}};
}

// Tries all texts, from the longest to the shortest.
std::string FirstThatFits(const Case& c, std::size_t length) {
  const std::string whole = FloatText(c.value, c.digits);
  const auto trimmed = [&](const std::string& text) {
    return c.digits.trim || c.digits.format == nfGeneral ? StripTChStr(text, '0') : text;
  };
  const std::string digits = whole.substr(0, whole.find('e'));
  const std::size_t point = std::min(digits.find('.'), digits.size());
  // Of a zero in exponent form all digits count.
  const bool any = c.value == 0 && digits != whole;
  const std::size_t first = std::min(digits.find_first_of(any ? "0" : "123456789"), digits.size());
  std::vector<std::string> texts{whole};
  if (digits == whole && point != digits.size()) {
    // The first digit that is not zero stays.
    const std::size_t least = first == digits.size() || first < point ? 0 : first - point;
    for (std::size_t decimals = digits.size() - point - 1; decimals-- > least;)
      texts.push_back(trimmed(Float2EStr(c.value, static_cast<int>(decimals))));
  }
  const std::size_t after_first = digits.size() - first;
  const std::size_t significant = after_first - (first < point && point < digits.size() ? 1 : 0);
  for (std::size_t decimals = significant; decimals-- > 0;) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*Le", static_cast<int>(decimals), c.value);
    const std::string number = text;
    const auto e = number.find('e');
    texts.push_back(trimmed(number.substr(0, e)) + 'e' +
                    std::to_string(std::stoi(number.substr(e + 1))));
  }
  texts.emplace_back(kNoRoom.substr(0, length));
  return *std::ranges::find_if(texts, [=](const auto& text) { return text.size() <= length; });
}

TEST(FittedFloatText, HasAllTheDigitsThatFit) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937_64 engine(seed);
  for (int i = 0; i < 3'000; ++i) {
    const Case c = RandomCase(engine);
    for (std::size_t length = 0; length <= 30; ++length) {
      ASSERT_EQ(FittedFloatText(c.value, c.digits, length), FirstThatFits(c, length))
          << FloatText(c.value, c.digits) << " in " << length;
    }
  }
}

// Without the plus sign and the leading zeros of an exponent, and without a last point.
std::string AsWritten(const char* format, int digits, Extended value) {
  char text[400];
  std::snprintf(text, sizeof text, format, digits, value);
  const std::string number = text;
  const auto e = std::min(number.find('e'), number.size());
  std::string mantissa = number.substr(0, e);
  if (mantissa.ends_with('.')) mantissa.pop_back();
  return e == number.size() ? mantissa
                            : mantissa + 'e' + std::to_string(std::stoi(number.substr(e + 1)));
}

TEST(FloatText, HasTheSignificantDigitsOfPrintf) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937_64 engine(seed);
  for (int i = 0; i < 3'000; ++i) {
    // Zero, ties, and numbers that get another exponent by rounding.
    Extended value = i == 0 ? 0 : RandomCase(engine).value;
    if (i % 5 == 1) value = std::pow(10.0L, static_cast<int>(engine() % 40) - 20) * 0.99999996L;
    const int n = 1 + static_cast<int>(engine() % 22);
    const auto text = [&](TQorNumberFormat format) {
      return FloatText(value, {.format = format, .significant = n});
    };
    const std::string general = AsWritten("%.*Lg", n, value);
    ASSERT_EQ(text(nfGeneral), general);
    // The same with n digits. (printf may lose some of them in exponent form.)
    const std::string significant = text(nfSignificant);
    const auto e = std::min(significant.find('e'), significant.size());
    ASSERT_EQ(StripTChStr(significant.substr(0, e), '0') + significant.substr(e), general);
    const auto first = std::min(significant.find_first_of("123456789"), e);
    const auto count = std::ranges::count_if(significant.substr(first, e - first), isdigit);
    ASSERT_EQ(count, value == 0 ? 0 : n) << significant;
    ASSERT_EQ(text(nfScientific), AsWritten("%.*Le", n - 1, value));
    const std::string all = FloatText(value, {.all = true, .format = nfScientific});
    ASSERT_EQ(Str2Float(all), value);
    ASSERT_TRUE(value == 0 || all.find('e') != std::string::npos) << all;
  }
}

// What the random numbers do not reach.
TEST(FittedFloatText, TakesExponentFormThenTheMarkForUnusualNumbers) {
  const std::tuple<Extended, FloatDigits, std::size_t, const char*> cases[] = {
      {-7654321.5L, {}, 9, "-7654322"},
      {-7654321.5L, {}, 7, "-7.65e6"},
      {-7654321.5L, {}, 3, "###"},
      {-0.0L, {.all = true}, 5, "0"},
      {1e4000L, {.trim = true}, 7, "1e4000"},
      {0x1p63L, {}, 30, "9223372036854775808"},
      {0x1p64L, {}, 10, "1.84467e19"},
      {1e-200L, {.decimals = 255}, 7, "1e-200"},
      {-0.0L, {.format = nfScientific}, 20, "0.00000e0"},
      {-0.0L, {.format = nfScientific}, 5, "0.0e0"},
      {-0.0L, {.format = nfSignificant}, 4, "0.00"},
      {0x1p70L, {.format = nfGeneral, .significant = 0}, 30, "1e21"},
      {-kInfinity, {.format = nfScientific}, 4, "-inf"},
      {kNaN, {.all = true, .format = nfScientific}, 4, "nan"},
      {-kInfinity, {}, 4, "-inf"},
      {kInfinity, {}, 2, "##"},
  };
  for (const auto& [value, digits, length, text] : cases) {
    EXPECT_EQ(FittedFloatText(value, digits, length), text) << value << " in " << length;
  }
}

}  // namespace
}  // namespace qorvex
