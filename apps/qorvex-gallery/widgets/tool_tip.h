#pragma once

/// @file
/// Tool tips for texts of any length.

#include <QRegularExpression>
#include <QString>

namespace qorvex::gallery {

/// The first few hundred characters of the text as a paragraph, so that the tool tip breaks its
/// lines. Words that are longer than a line are broken as well.
[[nodiscard]] inline QString ToolTipOf(const QString& text) {
  constexpr qsizetype kMostCharacters = 400;
  static const QRegularExpression long_word(QStringLiteral("(\\S{40})"));
  QString shown = text.size() > kMostCharacters ? text.left(kMostCharacters) + QChar(0x2026) : text;
  shown.replace(long_word, QStringLiteral("\\1\u200B"));
  return QStringLiteral("<p>%1</p>").arg(shown.toHtmlEscaped());
}

}  // namespace qorvex::gallery
