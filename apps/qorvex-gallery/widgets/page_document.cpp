#include "apps/qorvex-gallery/widgets/page_document.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextObjectInterface>

#include "apps/qorvex-gallery/model/file_writing.h"
#include "apps/qorvex-gallery/model/html.h"
#include "apps/qorvex-gallery/plot/plot_picture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/page.h"

namespace qorvex::gallery {

namespace {

constexpr int kPlotObject = QTextFormat::UserObject + 1;
constexpr int kPartIndex = QTextFormat::UserProperty + 1;

QFont HeadingFont(const QTextDocument& document, int level) {
  QFont font = document.defaultFont();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * (level == 1 ? 1.5 : 1.2));
  return font;
}

// Draws the diagrams of a report in a document, at most as wide as its text, with their headings,
// which would otherwise stay behind on another page.
class PlotObjects : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  explicit PlotObjects(const PageReport& report) : report_(report) {}

  QSizeF intrinsicSize(QTextDocument* document, int, const QTextFormat& format) override {
    const PlotView& plot = *PartOf(format).plot;
    // The page is measured in pixels of the printer, its margins in those of the screen.
    const QPaintDevice* const printer = document->documentLayout()->paintDevice();
    const double scale = printer == nullptr ? 1 : 1.0 * printer->logicalDpiX() / plot.logicalDpiX();
    const QTextFrameFormat frame = document->rootFrame()->frameFormat();
    const double width =
        document->pageSize().width() - scale * (frame.leftMargin() + frame.rightMargin());
    const QSizeF room(width, document->pageSize().height() / 2);
    const QSizeF natural = scale * QSizeF(plot.size());
    const bool fits = natural.boundedTo(room) == natural;
    const QSizeF size = fits ? natural : natural.scaled(room, Qt::KeepAspectRatio);
    return {size.width(), size.height() + scale * HeadingHeight(*document)};
  }

  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int,
                  const QTextFormat& format) override {
    const PageReport::Part& part = PartOf(format);
    const double scale = rect.width() / part.plot->width();
    painter->save();
    painter->setPen(Qt::black);
    painter->setFont(HeadingFont(*document, 2));
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignTop, part.heading);
    painter->translate(rect.left(), rect.bottom() - scale * part.plot->height());
    painter->scale(scale, scale);
    part.plot->Draw(*painter, part.plot->rect());
    painter->restore();
  }

 private:
  [[nodiscard]] const PageReport::Part& PartOf(const QTextFormat& format) const {
    return report_.parts[format.intProperty(kPartIndex)];
  }
  static double HeadingHeight(const QTextDocument& document) {
    return 1.5 * QFontMetricsF(HeadingFont(document, 2)).height();
  }

  const PageReport& report_;
};

bool HasPlot(const PageReport::Part& part) {
  return part.plot != nullptr && !part.plot->IsEmpty();
}

QString HtmlHeading(const char* tag, const QString& text) {
  return QStringLiteral("<%1>%2</%1>\n").arg(QLatin1String(tag), text.toHtmlEscaped());
}

QString Image(const PlotView& plot) {
  const PictureFormat& format = FormatForBrowsers();
  return QStringLiteral("<p><img src=\"data:%1;base64,%2\" alt=\"%3\" width=\"%4\"></p>\n")
      .arg(format.mime_type, QString::fromLatin1(format.write(plot).toBase64()),
           plot.accessibleDescription().toHtmlEscaped(), QString::number(plot.width()));
}

// Space above each part of a report.
QTextBlockFormat FirstBlock() {
  QTextBlockFormat block;
  block.setTopMargin(18);
  block.setBottomMargin(6);
  return block;
}

void AddHeading(QTextCursor& cursor, int level, const QString& text) {
  QTextCharFormat characters;
  characters.setFont(HeadingFont(*cursor.document(), level));
  cursor.insertBlock(FirstBlock(), characters);
  cursor.insertText(text);
}

}  // namespace

QByteArray HtmlReport(const PageReport& report) {
  QString html =
      QStringLiteral(
          "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
          "<style>\nbody { font-family: sans-serif; max-width: 60em; margin: 2em auto; }\n"
          "th { font-weight: normal; }\n"
          "img { max-width: 100%; }\n</style>\n"
          "</head>\n<body>\n")
          .arg(report.title.toHtmlEscaped());
  html += HtmlHeading("h1", report.title);
  for (const PageReport::Part& part : report.parts) {
    html += HtmlHeading("h2", part.heading);
    if (HasPlot(part)) html += Image(*part.plot);
    if (!part.rows.empty()) html += HtmlTable(part.rows);
  }
  return (html + QStringLiteral("</body>\n</html>\n")).toUtf8();
}

void PrintReport(const PageReport& report, QPagedPaintDevice& printer) {
  QTextDocument document;
  PlotObjects plots(report);
  document.documentLayout()->registerHandler(kPlotObject, &plots);
  document.setDefaultStyleSheet(QStringLiteral("th { font-weight: normal; }"));
  QTextCursor cursor(&document);
  AddHeading(cursor, 1, report.title);
  for (int i = 0; i < report.parts.size(); ++i) {
    const PageReport::Part& part = report.parts[i];
    if (HasPlot(part)) {
      QTextCharFormat format;
      format.setObjectType(kPlotObject);
      format.setProperty(kPartIndex, i);
      cursor.insertBlock(FirstBlock(), {});
      cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
    } else {
      AddHeading(cursor, 2, part.heading);
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
