#pragma once

/// @file
/// Where results and remarks go.

#include <string_view>

namespace qorvex::cli {

/// Writes a command's whole result to standard output, so that a command which fails halfway prints
/// none. Raises std::system_error when not every byte could be written.
void WriteResult(std::string_view text);

/// Writes one line to standard error, after the program's name.
void WriteRemark(std::string_view text);

}  // namespace qorvex::cli
