#pragma once

/// @file
/// Writing a whole file.

#include <QByteArray>
#include <QString>

namespace qorvex::gallery {

/// Replaces the file. Throws std::runtime_error with its name and the reason if that fails; the
/// file then stays as it was.
void WriteFile(const QString& path, const QByteArray& bytes);

}  // namespace qorvex::gallery
