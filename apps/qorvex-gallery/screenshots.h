#pragma once

/// @file
/// Pictures of the pages.

#include <QString>

namespace qorvex::gallery {

class MainWindow;

/// Writes a picture of the window with each page to <directory>/<page>.png, and one of the choice
/// of a form to preview.png, and prints the file names. If the table that the window opened could
/// not be read, or a picture cannot be written, reports that on standard error and returns false.
bool WriteScreenshots(MainWindow& window, const QString& directory);

}  // namespace qorvex::gallery
