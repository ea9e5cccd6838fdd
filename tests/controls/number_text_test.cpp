#include "qorvex/base_controls/detail/number_text.h"

#include <cmath>
#include <random>
#include <utility>
#include <vector>

#include "qorvex/base/text.h"
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
