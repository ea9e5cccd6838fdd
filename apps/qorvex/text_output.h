#pragma once

/// @file
/// How figures are written, and where results and remarks go.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// A figure with that many decimals, or the shortest text that keeps all its bits.
[[nodiscard]] std::string FigureText(Extended figure, std::optional<int> decimals);

/// Appends a line of figures with commas between them.
void AppendLine(std::string& text, std::span<const Extended> figures, std::optional<int> decimals);

/// Writes a command's whole result to standard output, so that a command which fails halfway prints
/// none. Raises std::system_error when not every byte could be written.
void WriteResult(std::string_view text);

/// Writes a part of a command's result to standard output, of which the last one is a call of
/// WriteResult. Raises std::system_error as that does, as soon as the fault shows.
void WritePart(std::string_view text);

/// Writes one line to standard error, after the program's name.
void WriteRemark(std::string_view text);

}  // namespace qorvex::apps
