#pragma once

/// @file
/// Texts for tool tips.

#include <QString>
#include <QTextDocument>

namespace qorvex::inline QorvexBaseControls::detail {

/// What to give a tool tip, which takes some texts for markup, so that it shows the text itself.
inline QString AsToolTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

}  // namespace qorvex::inline QorvexBaseControls::detail
