#pragma once

/// @file
/// Texts for tool tips.

#include <QString>
#include <QTextDocument>

namespace qorvex::inline QorvexBaseControls::detail {

/// A tool tip that shows the text literally, even if it looks like markup.
inline QString AsToolTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

}  // namespace qorvex::inline QorvexBaseControls::detail
