#pragma once

/// @file
/// Files, and resources of the program, as text to read.

#include <QString>
#include <functional>
#include <stop_token>

#include "apps/common/text_input.h"

namespace qorvex::gallery {

/// Reading was stopped.
struct ReadingStopped {};

/// The file at the path, or in the resources of the program, for reading. Its name in messages is
/// the name without folders. Raises InputError when it cannot be opened.
[[nodiscard]] apps::TextInput OpenFile(const QString& path);

/// The same text with an observer that learns how many bytes have been read. Raises ReadingStopped
/// once that is asked for.
[[nodiscard]] apps::TextInput Observed(apps::TextInput input, std::stop_token stop,
                                       std::function<void(qint64 bytes)> progress);

}  // namespace qorvex::gallery
