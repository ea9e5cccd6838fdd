#include "qorvex/base_controls/detail/number_text.h"

#include <string>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::inline QorvexBaseControls::detail {

namespace {

constexpr bool IsDigit(char32_t character) {
  return character >= U'0' && character <= U'9';
}

/// Texts of right-to-left locales carry marks that steer how they are shown.
QString WithoutDirectionMarks(QString text) {
  return text.removeIf([](QChar c) { return c == u'\u200E' || c == u'\u200F' || c == u'\u061C'; });
}

/// The digits of a locale, which may lie beyond 16 bits.
char32_t ZeroOf(const QLocale& locale) {
  return locale.zeroDigit().toUcs4().value(0, U'0');
}

/// Reads the characters of a number as a locale writes them.
class LocalReader {
 public:
  explicit LocalReader(const QLocale& locale)
      : zero_(ZeroOf(locale)),
        point_groups_(locale.groupSeparator() == u'.'),
        signs_{{WithoutDirectionMarks(locale.exponential()), 'e'},
               {WithoutDirectionMarks(locale.negativeSign()), '-'},
               {WithoutDirectionMarks(locale.positiveSign()), '+'},
               {locale.decimalPoint(), '.'}} {}

  /// Removes one character from the front of the text and returns its plain form; 0 if it has none.
  [[nodiscard]] char Take(QStringView& text) const {
    const char plain = Plain(text.front().unicode());
    if (plain != 0) {
      text = text.sliced(1);
      return plain;
    }
    for (const auto& [local, sign] : signs_) {
      if (!local.isEmpty() && text.startsWith(local)) {
        text = text.sliced(local.size());
        return sign;
      }
    }
    const char32_t character = FirstCharacter(text);
    if (character < zero_ || character - zero_ > 9) return 0;
    text = text.sliced(QChar::requiresSurrogates(character) ? 2 : 1);
    return static_cast<char>('0' + (character - zero_));
  }

 private:
  [[nodiscard]] char Plain(char16_t character) const {
    if (IsDigit(character)) return static_cast<char>(character);
    switch (character) {
      case u'+':
        return '+';
      case u'-':
      case u'\u2212':
        return '-';
      case u'e':
      case u'E':
        return 'e';
      case u'.':
        return point_groups_ ? '\0' : '.';
      default:
        return 0;
    }
  }

  static char32_t FirstCharacter(QStringView text) {
    const QChar first = text.front();
    if (!first.isHighSurrogate() || text.size() == 1 || !text[1].isLowSurrogate()) {
      return first.unicode();
    }
    return QChar::surrogateToUcs4(first, text[1]);
  }

  struct Sign {
    QString local;
    char plain;
  };

  char32_t zero_;
  bool point_groups_;
  Sign signs_[4];
};

}  // namespace

QString LocalNumber(std::string_view plain, const QLocale& locale) {
  const char32_t zero = ZeroOf(locale);
  QString text = QString::fromLatin1(plain.data(), static_cast<qsizetype>(plain.size()));
  if (zero != U'0') {
    for (char16_t digit = 0; digit <= 9; ++digit) {
      const char32_t local = zero + digit;
      text.replace(QChar(u'0' + digit), QString::fromUcs4(&local, 1));
    }
  }
  if (plain.find('.') != plain.npos) text.replace(u'.', locale.decimalPoint());
  if (plain.find('-') != plain.npos) text.replace(u'-', locale.negativeSign());
  return text;
}

std::optional<Extended> ParseLocalNumber(const QString& text, const QLocale& locale, int power) {
  const LocalReader reader(locale);
  const QString trimmed = WithoutDirectionMarks(text).trimmed();
  std::string plain;
  for (QStringView rest = trimmed; !rest.empty();) {
    const char character = reader.Take(rest);
    if (character == 0) return std::nullopt;
    plain += character;
  }
  if (power != 0) {
    if (plain.find('e') != plain.npos) return std::nullopt;
    plain += 'e' + std::to_string(power);
  }
  try {
    return Str2Float(plain);
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

}  // namespace qorvex::inline QorvexBaseControls::detail
