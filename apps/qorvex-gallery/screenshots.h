#pragma once

/// @file
/// Pictures of the pages.

#include <QString>

namespace qorvex::gallery {

class MainWindow;

/// Writes a picture of the window with each page to <directory>/<page>.png and prints the files'
/// names. False, with a remark on standard error, when one cannot be written.
bool WriteScreenshots(MainWindow& window, const QString& directory);

}  // namespace qorvex::gallery
