#pragma once

/// @file
/// Diagrams as pictures.

#include <QByteArray>
#include <QString>
#include <vector>

class QPagedPaintDevice;

namespace qorvex::gallery {

class PlotView;

/// A kind of file.
struct PictureFormat {
  QString suffix;  ///< Such as png.
  QString name;    ///< Such as PNG.
  QString mime_type;
  QByteArray (*write)(const PlotView& plot);
};

/// The formats of this build: PNG of twice the size, PDF, and SVG where Qt's module for it is
/// there.
[[nodiscard]] const std::vector<PictureFormat>& PictureFormats();

/// The one that browsers show without a loss, SVG if it is there.
[[nodiscard]] const PictureFormat& FormatForBrowsers();

/// Writes what the diagram shows to a file in the format that its suffix names. Throws
/// std::runtime_error if the suffix names none or the file cannot be written.
void SavePicture(const PlotView& plot, const QString& path);

/// Puts what the diagram shows on the clipboard in all formats.
void CopyPicture(const PlotView& plot);

/// Prints what the diagram shows, as wide as the page allows. The printer knows if that failed.
void PrintPicture(const PlotView& plot, QPagedPaintDevice& printer);

}  // namespace qorvex::gallery
