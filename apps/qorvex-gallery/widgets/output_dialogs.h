#pragma once

/// @file
/// Questions where to save and on what to print.

#include <QList>
#include <QPageLayout>
#include <QString>
#include <functional>

class QPagedPaintDevice;
class QWidget;

namespace qorvex::gallery {

/// A kind of file: what it is called, and the end of its name.
struct FileKind {
  QString name;
  QString suffix;
};

/// Asks for a file of one of these kinds, whose suffix follows the chosen kind unless it is typed,
/// and calls the function with it. Shows the text of an exception that this throws.
void AskAndSave(QWidget* parent, const QString& title, const QList<FileKind>& kinds,
                const std::function<void(const QString& path)>& save);

/// Asks for a printer and calls the function with it. Says so if printing fails.
void AskAndPrint(QWidget* parent, QPageLayout::Orientation orientation,
                 const std::function<void(QPagedPaintDevice& printer)>& print);

}  // namespace qorvex::gallery
