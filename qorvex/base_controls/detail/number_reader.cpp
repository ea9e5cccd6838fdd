#include "qorvex/base_controls/detail/number_reader.h"

#include <QCoreApplication>
#include <cmath>

#include "qorvex/base_controls/detail/digit_groups.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::inline QorvexBaseControls::detail {

namespace {

constexpr int kPercent = -2;

CellReading Refused(const char* sentence, const QString& text) {
  return {{}, QCoreApplication::translate("TQorCustomEdit", sentence).arg(text)};
}

// How a text is read.
struct Notation {
  const QLocale& locale;
  bool shows_groups;
};

// Reads a part of a whole text, which is quoted if the part is not a number.
CellReading ReadScaled(const QString& part, const QString& whole, const Notation& notation,
                       int power) {
  const QString text = part.trimmed();
  const QLocale& locale = notation.locale;
  if (const auto value = ParseLocalNumber(text, locale, power)) return {value, {}};
  const SeparatorReadings readings = ReadSeparators(text, locale);
  const auto groups = ParseLocalNumber(readings.groups, locale, power);
  const auto decimals = ParseLocalNumber(readings.decimals, locale, power);
  const bool as_shown = notation.shows_groups && readings.is_local_group;
  if (groups && decimals && !as_shown) {
    return {{},
            QCoreApplication::translate("TQorCustomEdit", "\"%1\" may mean %2 or %3.",
                                        "a text and two numbers")
                .arg(text, readings.groups, readings.decimals)};
  }
  if (groups) return {groups, {}};
  if (!decimals) return NotANumber(whole);
  if (readings.two_kinds) return {decimals, {}};
  return {{},
          QCoreApplication::translate("TQorCustomEdit",
                                      "\"%1\" is not a number: the decimal separator is \"%2\".")
              .arg(text, locale.decimalPoint())};
}

CellReading ReadOperand(const QString& text, const Notation& notation) {
  QString number = text.trimmed();
  for (const QString& percent : {QStringLiteral("%"), notation.locale.percent()}) {
    if (!number.endsWith(percent)) continue;
    number.chop(percent.size());
    return ReadScaled(number, text, notation, kPercent);
  }
  return ReadScaled(number, text, notation, 0);
}

// Products and quotients of operands.
CellReading ReadProduct(const QString& text, const Notation& notation) {
  Extended result = 1;
  int divisions = 0;
  QChar operation = u'*';
  for (qsizetype from = 0; from <= text.size();) {
    qsizetype to = from;
    while (to < text.size() && text[to] != u'*' && text[to] != u'/') ++to;
    const QString operand = text.mid(from, to - from);
    if (operand.trimmed().isEmpty()) return NotANumber(text);
    const CellReading reading = ReadOperand(operand, notation);
    if (!reading.value) return reading;
    if (operation == u'*') {
      result *= *reading.value;
    } else if (++divisions > 1) {
      return NotANumber(text);
    } else if (*reading.value == 0) {
      return Refused(QT_TRANSLATE_NOOP("TQorCustomEdit", "\"%1\" divides by zero."), text);
    } else {
      result /= *reading.value;
    }
    if (to < text.size()) operation = text[to];
    from = to + 1;
  }
  if (!std::isfinite(result)) {
    return Refused(QT_TRANSLATE_NOOP("TQorCustomEdit", "The value of \"%1\" is too large."), text);
  }
  return {result, {}};
}

}  // namespace

CellReading NotANumber(const QString& text) {
  return Refused(QT_TRANSLATE_NOOP("TQorCustomEdit", "\"%1\" is not a number."), text.trimmed());
}

CellReading ReadNumber(const QString& text, const QLocale& locale, bool shows_groups) {
  return ReadScaled(text, text, {locale, shows_groups}, 0);
}

CellReading ReadExpression(const QString& text, const QLocale& locale, bool shows_groups) {
  const Notation notation{locale, shows_groups};
  const QString trimmed = text.trimmed();
  if (!trimmed.startsWith(u'(')) return ReadProduct(trimmed, notation);
  const QString product = trimmed.mid(1, trimmed.size() - 2).trimmed();
  if (!trimmed.endsWith(u')') || product.isEmpty() || product.startsWith(u'(')) {
    return NotANumber(text);
  }
  const CellReading inside = ReadProduct(product, notation);
  if (!inside.value) return inside;
  // The parentheses stand for a minus sign already.
  if (std::signbit(*inside.value)) return NotANumber(text);
  // Not -0 for "(0)".
  return {0 - *inside.value, {}};
}

}  // namespace qorvex::inline QorvexBaseControls::detail
