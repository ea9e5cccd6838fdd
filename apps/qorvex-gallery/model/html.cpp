#include "apps/qorvex-gallery/model/html.h"

namespace qorvex::gallery {

QString HtmlTable(const QList<QStringList>& rows) {
  QString html = QStringLiteral("<table cellspacing=\"0\" cellpadding=\"2\">\n");
  for (const QStringList& row : rows) {
    const bool is_heading = row.value(0).isEmpty();
    html += QStringLiteral("<tr>");
    for (qsizetype i = 0; i < row.size(); ++i) {
      const QString cell = i == 0       ? QStringLiteral("<th align=\"left\">%1</th>")
                           : is_heading ? QStringLiteral("<th align=\"right\">%1</th>")
                                        : QStringLiteral("<td align=\"right\">%1</td>");
      html += cell.arg(row[i].toHtmlEscaped());
    }
    html += QStringLiteral("</tr>\n");
  }
  return html + QStringLiteral("</table>\n");
}

}  // namespace qorvex::gallery
