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
  const QString none = QStringLiteral("\"%1\" is not a number.");
  const QString doubt = QStringLiteral("\"%1\" may mean 1234 or %2.");
  const QString wrong = QStringLiteral("\"%1\" is not a number: the decimal separator is \"%2\".");
  struct Case {
    const char* locale;
    const char16_t* texts;  // Between bars.
    Extended value = kNaN;
    QString refusal = {};
  };
  const Case cases[] = {
      {"en", u"1,234.50|1.234,50|1'234.5", 1234.5L},
      {"en", u"1,234,567|12,34,567|1.234.567e0|1\u202F234\u202F567", 1234567},
      {"de", u"1,234.5|1.234,5", 1234.5L},
      {"fr", u"1.234|1,234", 1.234L},
      {"fr", u"1\u202F234|1'234", 1234},
      {"sv", u"\u22121\u00A0234,5", -1234.5L},
      {"fr", u"1 234,5|1 234.5| 1 234,5e0 ", 1234.5L},
      {"fr", u"1 234|1 234 567|1,234 567|1 2,5|1 234\u202F567,5", kNaN, none},
      {"de_CH", u"1\u2019234.5", 1234.5L},
      {"hi", u"1,00,000", 100000},
      {"fa", u"\u200E\u2212\u06F1\u066C\u06F2\u06F3\u06F4\u066B\u06F5", -1234.5L},
      {"ff_Adlm", u"\U0001E951,234,\U0001E955\U0001E955\U0001E955.5", 1234555.5L},
      {"en", u"1,234", kNaN, doubt.arg("%1", "1.234")},
      {"C", u"1,234", kNaN, doubt.arg("%1", "1.234")},
      {"de", u"1.234", kNaN, doubt.arg("%1", "1,234")},
      {"de", u"1.5", kNaN, wrong.arg("%1", ",")},
      {"en", u"1,5|0,123|1234,567", kNaN, wrong.arg("%1", ".")},
      {"en", u"| \t|1 2|nan|inf|-Infinity|\u221E|1e5000|0x10|1.2.3|+-1|1-|e5|1e|.|12abc", kNaN,
       none},
      {"en", u"1\u0967|\xD83A|1,2,3|1 234 567|1,234,56|1 234.5|1,234.567.890|1,234.567,890", kNaN,
       none},
      {"en", u"1'23|1,2e5,123|01,234,567|12,34,56,789,0|1,234,567x|1'234,567.5", kNaN, none},
      {"fa", u"\u06F1\u066C\u06F2", kNaN, none},
      {"ff_Adlm", u"1\xD83A", kNaN, none},
  };
  for (const Case& c : cases) {
    for (const QString& text : QString::fromUtf16(c.texts).split('|')) {
      SCOPED_TRACE(c.locale + text.toStdString());
      const CellReading reading = ReadNumber(text, Locale(c.locale));
      EXPECT_EQ(reading.value.has_value(), c.refusal.isEmpty());
      EXPECT_TRUE(!reading.value || *reading.value == c.value);
      const QString refusal = c.refusal.isEmpty() ? QString() : c.refusal.arg(text.trimmed());
      EXPECT_EQ(reading.refusal, refusal);
    }
  }
}

// Whatever groups a number is shown with, it is read back, and never as another one.
TEST(NumberText, ReadsTheGroupsThatAreShown) {
  for (const char* name : kLocales) {
    const QLocale locale = Locale(name);
    for (const char* plain :
         {"0", "-999", "1234", "-12345.5", "1234567", "123456789.25", "1234e9"}) {
      const QString text = WithGroups(LocalNumber(plain, locale), locale);
      const Extended value = Str2Float(plain);
      EXPECT_EQ(ReadNumber(text, locale, true).value, value) << name << ' ' << text.toStdString();
      EXPECT_EQ(ReadExpression(text, locale).value.value_or(value), value) << name;
    }
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
  for (const auto& [text, value] : values) EXPECT_EQ(ReadExpression(text, en).value, value) << text;
  EXPECT_FALSE(ReadNumber("12%", en).value);
  EXPECT_EQ(ReadExpression(QStringLiteral("12,5\u00A0%"), Locale("de")).value, 0.125L);
  const std::pair<const char*, const char*> refused[] = {
      {"1/0", "\"1/0\" divides by zero."},
      {"1e4000*1e4000", "The value of \"1e4000*1e4000\" is too large."},
      {"2*1,234", "\"1,234\" may mean 1234 or 1.234."},
      {"1,5%", "\"1,5\" is not a number: the decimal separator is \".\"."},
      {"2*x", "\"x\" is not a number."}};
  for (const auto& [text, reason] : refused) EXPECT_EQ(ReadExpression(text, en).refusal, reason);
  for (const char* text : {"", "()", "%", "2*", "/2", "1/2/24", "(-5)", "((5))", "(5", "5)", "1e2%",
                           "5%%", "1+2", "2**3"}) {
    const CellReading reading = ReadExpression(text, en);
    EXPECT_FALSE(reading.value) << text;
    EXPECT_EQ(reading.refusal, QStringLiteral("\"%1\" is not a number.").arg(text));
  }
  EXPECT_FALSE(std::signbit(*ReadExpression("(0)", en).value));
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

}  // namespace
}  // namespace qorvex::inline QorvexBaseControls::detail
