#pragma once

/// @file
/// Texts of any length as tool tips.

#include <QRegularExpression>
#include <QString>

namespace qorvex::gallery {

/// A paragraph, whose lines the tool tip breaks, of the first hundreds of characters. Words that
/// are longer than a line are broken too.
[[nodiscard]] inline QString ToolTipOf(const QString& text) {
  constexpr qsizetype most = 400;
  static const QRegularExpression long_word(QStringLiteral("(\\S{40})"));
  QString shown = text.size() > most ? text.left(most) + QChar(0x2026) : text;
  shown.replace(long_word, QStringLiteral("\\1\u200B"));
  return QStringLiteral("<p>%1</p>").arg(shown.toHtmlEscaped());
}

}  // namespace qorvex::gallery
