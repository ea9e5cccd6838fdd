#pragma once

/// @file
/// Files and resources of the program as input.

#include <QByteArray>
#include <QString>
#include <functional>

#include "apps/common/text_input.h"

namespace qorvex::gallery {

/// Thrown when reading was stopped.
struct ReadingStopped {};

/// Opens a file, or a resource of the program. Its name in messages has no folders. Throws
/// InputError if it cannot be opened.
[[nodiscard]] apps::TextInput OpenFile(const QString& path);

/// A text in memory.
[[nodiscard]] apps::TextInput TextInputOf(const QString& name, const QByteArray& text);

/// The same text, with a function that is called before each block with the number of bytes read so
/// far. Throws ReadingStopped when the function returns false.
[[nodiscard]] apps::TextInput Observed(apps::TextInput input,
                                       std::function<bool(std::size_t bytes)> proceed);

}  // namespace qorvex::gallery
