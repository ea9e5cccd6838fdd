#pragma once

/// @file
/// Formatting of figures, standard output and standard error.

#include <span>
#include <string>
#include <string_view>

#include "apps/common/figure_format.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// Appends a line of figures separated by commas.
void AppendLine(std::string& text, std::span<const Extended> figures, const FigureFormat& format);

/// Writes the whole result of a command to standard output. A command that fails halfway thus
/// prints nothing, and an interrupt leaves no file half written. Throws std::system_error if any
/// byte could not be written.
void WriteResult(std::string_view text);
/// The same for the parts of a result.
void WriteResult(std::span<const std::string_view> parts);

/// Writes a part of a result to standard output; the last part must be written with WriteResult.
/// Throws std::system_error as soon as an error is detected.
void WritePart(std::string_view text);

/// Writes one line to standard error, preceded by the name of the program.
void WriteRemark(std::string_view text);

}  // namespace qorvex::apps
