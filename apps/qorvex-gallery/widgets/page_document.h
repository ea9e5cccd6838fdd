#pragma once

/// @file
/// Reports of pages as documents.

#include <QByteArray>
#include <QString>

class QPagedPaintDevice;

namespace qorvex::gallery {

struct PageReport;

/// The report as an HTML file that needs no other file: diagrams are in it as SVG, or as PNG where
/// SVG is missing.
[[nodiscard]] QByteArray HtmlReport(const PageReport& report);

/// Prints the report.
void PrintReport(const PageReport& report, QPagedPaintDevice& printer);

/// Writes the report to a file, as PDF if its name ends in .pdf, otherwise as HTML. Throws
/// std::runtime_error if the file cannot be written.
void SaveReport(const PageReport& report, const QString& path);

}  // namespace qorvex::gallery
