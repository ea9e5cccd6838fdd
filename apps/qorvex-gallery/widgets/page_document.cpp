#include "apps/qorvex-gallery/widgets/page_document.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <algorithm>

#include "apps/qorvex-gallery/model/file_writing.h"
#include "apps/qorvex-gallery/model/html.h"
#include "apps/qorvex-gallery/plot/plot_picture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/page.h"

namespace qorvex::gallery {

namespace {

constexpr int kPlotObject = QTextFormat::UserObject + 1;
constexpr int kPlotIndex = QTextFormat::UserProperty + 1;

// Draws the diagrams of a report in a document, as wide as its text allows.
class PlotObjects : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  explicit PlotObjects(const PageReport& report) : report_(report) {}

  QSizeF intrinsicSize(QTextDocument* document, int, const QTextFormat& format) override {
    const QSizeF size = PlotOf(format).size();
    const double margins = 2 * document->documentMargin();
    const double width = document->pageSize().width() - margins;
    const double height = document->pageSize().height() - margins;
    return size.scaled(width, std::min(size.height() * width / size.width(), height / 2),
                       Qt::KeepAspectRatio);
  }

  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                  const QTextFormat& format) override {
    const PlotView& plot = PlotOf(format);
    painter->save();
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / plot.width(), rect.height() / plot.height());
    plot.Draw(*painter, plot.rect());
    painter->restore();
  }

 private:
  [[nodiscard]] const PlotView& PlotOf(const QTextFormat& format) const {
    return *report_.parts[format.intProperty(kPlotIndex)].plot;
  }

  const PageReport& report_;
};

bool HasPlot(const PageReport::Part& part) {
  return part.plot != nullptr && !part.plot->IsEmpty();
}

QString Heading(const char* tag, const QString& text) {
  return QStringLiteral("<%1>%2</%1>\n").arg(QLatin1String(tag), text.toHtmlEscaped());
}

QString Image(const PlotView& plot) {
  const PictureFormat& format = FormatForBrowsers();
  return QStringLiteral("<p><img src=\"data:%1;base64,%2\" alt=\"%3\" width=\"%4\"></p>\n")
      .arg(format.mime_type, QString::fromLatin1(format.write(plot).toBase64()),
           plot.accessibleDescription().toHtmlEscaped(), QString::number(plot.width()));
}

}  // namespace

QByteArray HtmlReport(const PageReport& report) {
  QString html =
      QStringLiteral(
          "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
          "<style>\nbody { font-family: sans-serif; max-width: 60em; margin: 2em auto; }\n"
          "th { font-weight: normal; padding: 0.1em 2em 0.1em 0; }\n"
          "td { padding: 0.1em 0 0.1em 2em; }\nimg { max-width: 100%; }\n</style>\n"
          "</head>\n<body>\n")
          .replace(QStringLiteral("%1"), report.title.toHtmlEscaped());
  html += Heading("h1", report.title);
  for (const PageReport::Part& part : report.parts) {
    html += Heading("h2", part.heading);
    if (HasPlot(part)) html += Image(*part.plot);
    if (!part.rows.empty()) html += HtmlTable(part.rows);
  }
  return (html + QStringLiteral("</body>\n</html>\n")).toUtf8();
}

void PrintReport(const PageReport& report, QPagedPaintDevice& printer) {
  QTextDocument document;
  PlotObjects plots(report);
  document.documentLayout()->registerHandler(kPlotObject, &plots);
  document.setDefaultStyleSheet(QStringLiteral("th { font-weight: normal; padding-right: 20px; }"));
  QTextCursor cursor(&document);
  cursor.insertHtml(Heading("h1", report.title));
  for (int i = 0; i < report.parts.size(); ++i) {
    const PageReport::Part& part = report.parts[i];
    cursor.insertBlock({}, {});
    cursor.insertHtml(Heading("h2", part.heading));
    if (HasPlot(part)) {
      QTextCharFormat format;
      format.setObjectType(kPlotObject);
      format.setProperty(kPlotIndex, i);
      cursor.insertBlock({}, {});
      cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
    }
    if (part.rows.empty()) continue;
    cursor.insertBlock({}, {});
    cursor.insertHtml(HtmlTable(part.rows));
  }
  document.print(&printer);
}

void SaveReport(const PageReport& report, const QString& path) {
  if (!path.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive))
    return WriteFile(path, HtmlReport(report));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(report.title);
    writer.setPageSize(QPageSize(QPageSize::A4));
    PrintReport(report, writer);
  }
  WriteFile(path, bytes);
}

}  // namespace qorvex::gallery

#include "page_document.moc"
