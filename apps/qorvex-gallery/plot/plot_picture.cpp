#include "apps/qorvex-gallery/plot/plot_picture.h"

#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#ifdef QORVEX_HAS_SVG
#include <QSvgGenerator>
#endif

#include "apps/qorvex-gallery/model/file_writing.h"
#include "apps/qorvex-gallery/plot/plot_view.h"

namespace qorvex::gallery {

namespace {

constexpr double kPixelsPerInch = 96;

QImage ImageOf(const PlotView& plot) {
  constexpr int kScale = 2;
  QImage image(kScale * plot.size(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kScale);
  QPainter painter(&image);
  plot.Draw(painter, plot.rect());
  return image;
}

QByteArray WritePng(const PlotView& plot) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  ImageOf(plot).save(&buffer, "PNG");
  return bytes;
}

QByteArray WritePdf(const PlotView& plot) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  constexpr double points_per_inch = 72;
  writer.setTitle(plot.accessibleName());
  writer.setPageMargins({});
  writer.setPageSize(QPageSize(QSizeF(plot.size()) * points_per_inch / kPixelsPerInch,
                               QPageSize::Point, {}, QPageSize::ExactMatch));
  QPainter painter(&writer);
  const double scale = writer.resolution() / kPixelsPerInch;
  painter.scale(scale, scale);
  plot.Draw(painter, plot.rect());
  painter.end();
  return bytes;
}

#ifdef QORVEX_HAS_SVG
QByteArray WriteSvg(const PlotView& plot) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(static_cast<int>(kPixelsPerInch));
  generator.setSize(plot.size());
  generator.setViewBox(plot.rect());
  generator.setTitle(plot.accessibleName());
  QPainter painter(&generator);
  plot.Draw(painter, plot.rect());
  painter.end();
  return bytes;
}
#endif

}  // namespace

const std::vector<PictureFormat>& PictureFormats() {
  static const std::vector<PictureFormat> formats = {
      {QStringLiteral("png"), QStringLiteral("PNG"), QStringLiteral("image/png"), WritePng},
      {QStringLiteral("pdf"), QStringLiteral("PDF"), QStringLiteral("application/pdf"), WritePdf},
#ifdef QORVEX_HAS_SVG
      {QStringLiteral("svg"), QStringLiteral("SVG"), QStringLiteral("image/svg+xml"), WriteSvg},
#endif
  };
  return formats;
}

const PictureFormat& FormatForBrowsers() {
  const auto& formats = PictureFormats();
  const auto svg = std::ranges::find(formats, QStringLiteral("svg"), &PictureFormat::suffix);
  return svg == formats.end() ? formats.front() : *svg;
}

void SavePicture(const PlotView& plot, const QString& path) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  const auto& formats = PictureFormats();
  const auto format = std::ranges::find(formats, suffix, &PictureFormat::suffix);
  if (format == formats.end()) {
    QStringList known;
    for (const PictureFormat& of : formats) known.append(u'.' + of.suffix);
    throw std::runtime_error(
        QCoreApplication::translate("qorvex::gallery::PlotView",
                                    "%1: pictures are written to files that end in %2")
            .arg(QFileInfo(path).fileName(), known.join(QStringLiteral(", ")))
            .toStdString());
  }
  WriteFile(path, format->write(plot));
}

void CopyPicture(const PlotView& plot) {
  auto* const data = new QMimeData;
  data->setImageData(ImageOf(plot));
  for (const PictureFormat& format : PictureFormats())
    data->setData(format.mime_type, format.write(plot));
  QGuiApplication::clipboard()->setMimeData(data);
}

void PrintPicture(const PlotView& plot, QPagedPaintDevice& printer) {
  QPainter painter(&printer);
  if (!painter.isActive()) return;
  const QRectF page = printer.pageLayout().paintRectPixels(printer.logicalDpiX());
  const double scale = std::min(page.width() / plot.width(), page.height() / plot.height());
  painter.scale(scale, scale);
  plot.Draw(painter, plot.rect());
}

}  // namespace qorvex::gallery
