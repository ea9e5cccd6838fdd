#pragma once

/// @file
/// Manual pages from the same descriptions as --help.

#include <CLI/CLI.hpp>
#include <string>

namespace qorvex::apps {

/// The manual page of the program, which lists its commands, or of one of these with everything
/// below it, in the language of man(7). What several commands have in common appears once.
[[nodiscard]] std::string ManualPage(const CLI::App& command);

}  // namespace qorvex::apps
