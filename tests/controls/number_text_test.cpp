#include "qorvex/base_controls/detail/number_text.h"

#include <cmath>
#include <random>
#include <tuple>
#include <utility>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/digit_groups.h"
#include "qorvex/base_controls/detail/number_reader.h"
#include "support/test.h"

namespace qorvex::inline QorvexBaseControls::detail {
namespace {

QLocale Locale(const char* name) {
  const QLocale locale(QString::fromLatin1(name));
  // An unknown name would give another locale, and the test would check nothing.
  EXPECT_EQ(locale.name().section(u'_', 0, 0), QString::fromLatin1(name).section(u'_', 0, 0));
  return locale;
}

// Other points, groups, digits and exponents, marks of direction, digits beyond 16 bits.
constexpr const char* kLocales[] = {"C",     "en", "de", "fr", "de_CH", "sv",     "es",
                                    "ar_EG", "fa", "hi", "mr", "he",    "ff_Adlm"};

TEST(NumberText, EveryBitComesBackInEveryLocale) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937_64 engine(seed);
  for (const char* name : kLocales) {
    const QLocale locale = Locale(name);
    std::vector<Extended> values = {0, -0.0L, 1e21L, std::numeric_limits<Extended>::max()};
    while (values.size() < 200) {
      const auto mantissa = static_cast<Extended>(static_cast<std::int64_t>(engine()));
      values.push_back(std::ldexp(mantissa, static_cast<int>(engine() % 32800) - 16500));
    }
    for (const Extended value : values) {
      const QString text = LocalNumber(Float2Str(value), locale);
      const auto back = ParseLocalNumber(text, locale);
      ASSERT_EQ(back, value) << name << ' ' << text.toStdString();
      EXPECT_EQ(std::signbit(*back), std::signbit(value)) << name;
    }
  }
}

TEST(NumberText, WritesDigitsPointAndMinusOfTheLocale) {
  const std::pair<const char*, const char16_t*> cases[] = {
      {"C", u"-1234567.25"},
      {"de", u"-1234567,25"},
      {"sv", u"\u22121234567,25"},
      {"hi", u"-1234567.25"},
      {"mr", u"-\u0967\u0968\u0969\u096A\u096B\u096C\u096D.\u0968\u096B"},
      {"fa", u"\u200E\u2212\u06F1\u06F2\u06F3\u06F4\u06F5\u06F6\u06F7\u066B\u06F2\u06F5"}};
  for (const auto& [locale, text] : cases) {
    EXPECT_EQ(LocalNumber("-1234567.25", Locale(locale)), QString::fromUtf16(text)) << locale;
  }
  EXPECT_EQ(LocalNumber("-1.5e-20", Locale("sv")), QString::fromUtf16(u"\u22121,5e\u221220"));
  EXPECT_EQ(LocalNumber("nan", Locale("de")), QStringLiteral("nan"));
}

TEST(NumberText, ReadsWhatPeopleTypeAndPaste) {
  const std::pair<const char*, std::vector<std::pair<const char16_t*, Extended>>> cases[] = {
      {"en",
       {{u"+1.5", 1.5L}, {u"\u22121.5E3", -1500}, {u".5", 0.5L}, {u"\t 12\u00A0\u202F\r\n", 12}}},
      {"de", {{u"1,5", 1.5L}, {u"-0,1", -0.1L}}},
      {"fr", {{u"1.5", 1.5L}, {u"1,5", 1.5L}}},
      {"de_CH", {{u"1.5", 1.5L}}},
      {"sv", {{u"\u22121,5\u00D710^\u22122", -0.015L}, {u"-1.5e2", -150}}},
      {"fa",
       {{u"\u06F1\u066B\u06F5\u00D7\u06F1\u06F0^\u06F2", 150},
        {u"1.5", 1.5L},
        {u"\u200E\u2212\u06F1\u066B5", -1.5L}}},
      {"ar_EG", {{u"\u061C-\u0661\u066B\u0665", -1.5L}}},
      {"he", {{u"\u200E-1.5", -1.5L}}},
      {"ff_Adlm", {{u"\U0001E951.\U0001E955", 1.5L}}},
      {"C", {{u"18446744073709551615", 18446744073709551615.0L}}},
  };
  for (const auto& [locale, texts] : cases) {
    for (const auto& [text, value] : texts) {
      EXPECT_EQ(ParseLocalNumber(QString::fromUtf16(text), Locale(locale)), value)
          << locale << ' ' << QString::fromUtf16(text).toStdString();
    }
  }
}

// What one locale does not read is read if its separators leave no doubt.
TEST(NumberText, ReadsNumbersOfOtherPlacesOrSaysWhyNot) {
  const QString not_a_number = QStringLiteral("\"%1\" is not a number.");
  const std::pair<const char*, std::vector<std::pair<const char16_t*, Extended>>> cases[] = {
      {"en",
       {{u"1,234.50", 1234.5L},
        {u"1.234,50", 1234.5L},
        {u"-1,234,567", -1234567},
        {u"12,34,567.8", 1234567.8L},
        {u"1.234.567e-3", 1234.567L},
        {u"1'234", 1234},
        {u"999\u202F999\u202F999,5", 999999999.5L}}},
      {"de", {{u"1.234,5", 1234.5L}, {u"1,234.5", 1234.5L}, {u"1.234.567", 1234567}}},
      {"fr", {{u"1.234", 1.234L}, {u"1\u202F234", 1234}, {u"1,234.5", 1234.5L}}},
      {"sv", {{u"\u22121\u00A0234,5", -1234.5L}}},
      {"de_CH", {{u"1\u2019234.5", 1234.5L}}},
      {"hi", {{u"1,00,000", 100000}}},
      {"fa",
       {{u"\u200E\u2212\u06F1\u066C\u06F2\u06F3\u06F4\u066B\u06F5", -1234.5L},
        {u"1,234.5", 1234.5L}}},
      {"ff_Adlm", {{u"\U0001E951,234,\U0001E955\U0001E955\U0001E955.5", 1234555.5L}}},
  };
  for (const auto& [locale, texts] : cases) {
    for (const auto& [text, value] : texts) {
      const CellReading reading = ReadNumber(QString::fromUtf16(text), Locale(locale));
      EXPECT_EQ(reading.value, value) << locale << ' ' << QString::fromUtf16(text).toStdString();
      EXPECT_EQ(reading.refusal, QString());
    }
  }

  const QString doubt = QStringLiteral("\"%1\" may mean 1234 or %2.");
  const QString point = QStringLiteral("\"%1\" is not a number: the decimal separator is \"%2\".");
  const std::tuple<const char*, const char16_t*, QString> refused[] = {
      {"en", u"1,234", doubt.arg("1,234", "1.234")},
      {"C", u"1,234", doubt.arg("1,234", "1.234")},
      {"de", u"1.234", doubt.arg("1.234", "1,234")},
      {"en", u"1,5", point.arg("1,5", ".")},
      {"en", u"0,123", point.arg("0,123", ".")},
      {"en", u"1234,567", point.arg("1234,567", ".")},
      {"de", u"1.5", point.arg("1.5", ",")},
      {"en", u"1 234 567", not_a_number.arg("1 234 567")},
      {"en", u"1,2,3", not_a_number.arg("1,2,3")},
      {"en", u"1,234,56", not_a_number.arg("1,234,56")},
      {"en", u"12,34,56,789,0", not_a_number.arg("12,34,56,789,0")},
      {"en", u"1,234.567.890", not_a_number.arg("1,234.567.890")},
      {"en", u"1,234.567,890", not_a_number.arg("1,234.567,890")},
      {"en", u"1'234,567.5", not_a_number.arg("1'234,567.5")},
      {"en", u"01,234,567", not_a_number.arg("01,234,567")},
      {"en", u"1,2e5,123", not_a_number.arg("1,2e5,123")},
      {"en", u"1,234,567x", not_a_number.arg("1,234,567x")},
      {"en", u"1'23", not_a_number.arg("1'23")},
  };
  for (const auto& [locale, text, reason] : refused) {
    const CellReading reading = ReadNumber(QString::fromUtf16(text), Locale(locale));
    EXPECT_FALSE(reading.value) << locale << ' ' << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(reading.refusal, reason);
  }
}

TEST(NumberText, ReadsExpressions) {
  const QLocale en = Locale("en");
  const std::pair<const char*, Extended> values[] = {
      {"12%", 0.12L},    {"0.1 %", 0.001L},      {"1,234.5%", 12.345L},
      {"(5)", -5},       {"( 12% )", -0.12L},    {"1/3", 1 / 3.0L},
      {"2*3", 6},        {" 2 * 3 / 8 ", 0.75L}, {"-1/4", -0.25L},
      {"50%*-3", -1.5L}, {"(1/4*2)", -0.5L},     {"1e3*2", 2000},
      {"1.5", 1.5L},     {"1,234,567", 1234567}};
  for (const auto& [text, value] : values) {
    EXPECT_EQ(ReadExpression(text, en).value, value) << text;
    const QString without = QString::fromLatin1(text).remove(' ');
    const bool is_number = without == "1.5" || without == "1,234,567";
    EXPECT_EQ(ReadNumber(text, en).value.has_value(), is_number) << text;
  }
  EXPECT_EQ(ReadExpression(QStringLiteral("12,5\u00A0%"), Locale("de")).value, 0.125L);
  const std::pair<const char*, const char*> refused[] = {
      {"1/0", "\"1/0\" divides by zero."},
      {"1e4000*1e4000", "The value of \"1e4000*1e4000\" is too large."},
      {"2*1,234", "\"1,234\" may mean 1234 or 1.234."},
      {"2*x", "\"x\" is not a number."}};
  for (const auto& [text, reason] : refused) EXPECT_EQ(ReadExpression(text, en).refusal, reason);
  for (const char* text : {"", "()", "%", "2*", "/2", "1/2/24", "(-5)", "((5))", "(5", "5)", "1e2%",
                           "5%%", "1+2", "2**3"}) {
    const CellReading reading = ReadExpression(text, en);
    EXPECT_FALSE(reading.value) << text;
    EXPECT_TRUE(reading.refusal.endsWith(" is not a number.")) << text;
  }
}

TEST(NumberText, SeparatesGroupsAsTheLocaleDoes) {
  const std::tuple<const char*, const char*, const char16_t*> cases[] = {
      {"C", "1234567.1234567", u"1,234,567.1234567"},
      {"en", "-1234", u"-1,234"},
      {"en", "123", u"123"},
      {"en", "1234567e1234", u"1,234,567e1234"},
      {"en", "-inf", u"-inf"},
      {"de", "1234567.5", u"1.234.567,5"},
      // No separator for four digits; groups of two; a no-break space; digits beyond 16 bits.
      {"es", "1234", u"1234"},
      {"es", "12345", u"12.345"},
      {"hi", "-123456789", u"-12,34,56,789"},
      {"sv", "1234567", u"1\u00A0234\u00A0567"},
      {"ff_Adlm", "1000", u"\U0001E951\u2E41\U0001E950\U0001E950\U0001E950"},
  };
  for (const auto& [name, plain, text] : cases) {
    const QLocale locale = Locale(name);
    EXPECT_EQ(WithGroups(LocalNumber(plain, locale), locale), QString::fromUtf16(text)) << name;
  }
}

TEST(NumberText, RefusesTextsThatAreNotNumbersOrAreAmbiguous) {
  const std::pair<const char*, std::vector<const char16_t*>> cases[] = {
      {"en", {u"1,234",     u"1,5",    u"",       u" \t",   u"1 2",     u"nan",   u"inf",
              u"-Infinity", u"\u221E", u"1e5000", u"0x10",  u"1.2.3",   u"+-1",   u"1-",
              u"e5",        u"1e",     u".",      u"12abc", u"1\u0967", u"\xD83A"}},
      {"C", {u"1,5"}},
      {"de", {u"1.234", u"1.5", u"1.234,5"}},
      {"es", {u"1.5"}},
      {"fr", {u"1\u202F234"}},
      {"sv", {u"1\u00A0234"}},
      {"de_CH", {u"1\u2019234"}},
      {"fa", {u"\u06F1\u066C\u06F2", u"1,5"}},
      {"hi", {u"1,00,000"}},
      {"ff_Adlm", {u"1\xD83A"}},
  };
  for (const auto& [locale, texts] : cases) {
    for (const char16_t* text : texts) {
      EXPECT_EQ(ParseLocalNumber(QString::fromUtf16(text), Locale(locale)), std::nullopt)
          << locale << ' ' << QString::fromUtf16(text).toStdString();
    }
  }
}

}  // namespace
}  // namespace qorvex::inline QorvexBaseControls::detail
