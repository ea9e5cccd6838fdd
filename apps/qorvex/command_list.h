#pragma once

/// @file
/// The option --list.

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// Adds --list to a command that has commands below it: it prints a line for each of these with its
/// other names and the options of its own.
void AddList(CLI::App& app);

}  // namespace qorvex::apps
