#pragma once

/// @file
/// Tables as HTML.

#include <QList>
#include <QString>
#include <QStringList>

namespace qorvex::gallery {

/// The rows as an HTML table. First cells are headings of their rows; other cells are aligned to
/// the right. A row whose first text is empty holds headings of the columns.
[[nodiscard]] QString HtmlTable(const QList<QStringList>& rows);

}  // namespace qorvex::gallery
