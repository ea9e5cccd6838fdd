#pragma once

/// @file
/// How much of a file has been read, on a terminal.

#include <string>

#include "apps/common/text_input.h"

namespace qorvex::apps {

/// Opens a file as OpenTextInput does. If that takes longer than two seconds and standard error is
/// a terminal, a line there says how much has been read; it disappears with the input.
[[nodiscard]] TextInput OpenWithProgress(const std::string& path);

}  // namespace qorvex::apps
