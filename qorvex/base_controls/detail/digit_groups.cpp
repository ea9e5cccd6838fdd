#include "qorvex/base_controls/detail/digit_groups.h"

#include <QList>
#include <algorithm>
#include <utility>
#include <vector>

namespace qorvex::inline QorvexBaseControls::detail {

namespace {

constexpr qsizetype kLastGroup = 3;

using Characters = QList<uint>;

bool IsDigit(uint character) {
  return QChar::isDigit(static_cast<char32_t>(character));
}

// How a locale groups digits, as its own integers show.
struct GroupSizes {
  QLocale locale;
  qsizetype higher = kLastGroup;  // The digits of a group before the last one.
  bool four_digits = true;        // Whether numbers of four digits have groups.

  explicit GroupSizes(const QLocale& of) : locale(of) {
    QLocale grouping = of;
    grouping.setNumberOptions(QLocale::DefaultNumberOptions);
    const auto groups = [&](qlonglong number) {
      return grouping.toString(number).split(grouping.groupSeparator());
    };
    four_digits = groups(1234).size() > 1;
    const QStringList long_number = groups(1234567890);
    if (long_number.size() > 2) higher = long_number.at(1).toUcs4().size();
  }
};

// The text around the digits and separators in front of an exponent.
struct Mantissa {
  Characters text;
  qsizetype begin = 0;
  qsizetype end = 0;
  std::vector<qsizetype> separators;  // Their places.

  template <class IsSeparator>
  Mantissa(const QString& whole, IsSeparator is_separator) : text(whole.toUcs4()) {
    begin = std::ranges::find_if(text, IsDigit) - text.begin();
    for (end = begin; end < text.size(); ++end) {
      if (is_separator(text[end])) {
        separators.push_back(end);
      } else if (!IsDigit(text[end])) {
        break;
      }
    }
  }

  [[nodiscard]] uint Separator(std::size_t i) const { return text[separators[i]]; }

  // The first separators, so many of them, separate groups of the digits before a place.
  [[nodiscard]] bool HasGroups(std::size_t count, qsizetype until) const {
    if (count == 0) return true;
    const auto size = [&](std::size_t part) {
      const qsizetype from = part == 0 ? begin : separators[part - 1] + 1;
      return (part == count ? until : separators[part]) - from;
    };
    const qsizetype higher = count > 1 ? size(1) : kLastGroup;
    if (size(count) != kLastGroup || (higher != kLastGroup && higher != kLastGroup - 1)) {
      return false;
    }
    for (std::size_t part = 1; part < count; ++part) {
      if (size(part) != higher || Separator(part) != Separator(0)) return false;
    }
    const bool leading_zero = QChar::digitValue(static_cast<char32_t>(text[begin])) == 0;
    return size(0) >= 1 && size(0) <= higher && !leading_zero;
  }

  // The text without the first separators, so many of them, and with another one instead of the
  // next.
  [[nodiscard]] QString Without(std::size_t count, const QString& decimal_point) const {
    QString result;
    std::size_t next = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
      const bool separates = next < separators.size() && i == separators[next];
      if (!separates) {
        const auto character = static_cast<char32_t>(text[i]);
        result += QString::fromUcs4(&character, 1);
      } else if (next++ == count) {
        result += decimal_point;
      }
    }
    return result;
  }
};

}  // namespace

QString WithGroups(const QString& number, const QLocale& locale) {
  // Most numbers are written in the same locale as the one before.
  thread_local GroupSizes sizes(QLocale::c());
  if (sizes.locale != locale) sizes = GroupSizes(locale);
  const Mantissa mantissa(number, [](uint) { return false; });
  const qsizetype digits = mantissa.end - mantissa.begin;
  if (digits <= kLastGroup || (digits == kLastGroup + 1 && !sizes.four_digits)) return number;
  QString result;
  for (qsizetype i = 0; i < mantissa.text.size(); ++i) {
    const qsizetype before_last = mantissa.end - kLastGroup - i;
    const bool inside = i > mantissa.begin && before_last >= 0;
    if (inside && before_last % sizes.higher == 0) result += locale.groupSeparator();
    const auto character = static_cast<char32_t>(mantissa.text[i]);
    result += QString::fromUcs4(&character, 1);
  }
  return result;
}

SeparatorReadings ReadSeparators(const QString& text, const QLocale& locale) {
  const QString may_be_decimal = QStringLiteral(".,") + locale.decimalPoint();
  const QString group = locale.groupSeparator();
  QString separators = may_be_decimal + QStringLiteral("\u00A0\u202F\u2009'\u2019") + group;
  constexpr QChar space = u' ';
  if (!group.isEmpty() && group.front().isSpace()) separators += space;
  const auto contains = [](const QString& characters, uint character) {
    return character <= 0xFFFF && characters.contains(QChar(static_cast<char16_t>(character)));
  };
  const Mantissa mantissa(text, [&](uint character) { return contains(separators, character); });
  const std::size_t count = mantissa.separators.size();
  if (count == 0) return {};

  SeparatorReadings readings;
  const uint last = mantissa.Separator(count - 1);
  readings.two_kinds = last != mantissa.Separator(0);
  readings.is_local_group = contains(group, last);
  if (last != space.unicode() && mantissa.HasGroups(count, mantissa.end)) {
    readings.groups = mantissa.Without(count, QString());
  }
  const bool last_is_decimal = contains(may_be_decimal, last) && (count == 1 || readings.two_kinds);
  if (last_is_decimal && mantissa.HasGroups(count - 1, mantissa.separators.back())) {
    readings.decimals = mantissa.Without(count - 1, locale.decimalPoint());
  }
  return readings;
}

}  // namespace qorvex::inline QorvexBaseControls::detail
