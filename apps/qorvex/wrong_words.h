#pragma once

/// @file
/// The messages about a command line that the parser refuses.

#include <CLI/CLI.hpp>
#include <string>

namespace qorvex::apps {

/// What is wrong with the command line; empty if nothing is, as after --help. A word that is no
/// command or no option comes before anything that is missing, together with the right words.
/// has_end_of_options tells whether the command line contains "--".
[[nodiscard]] std::string WhatIsWrong(const CLI::Error& error, const CLI::App& program,
                                      bool has_end_of_options);

/// The message about a word that is no command below the given one.
[[nodiscard]] std::string UnknownCommand(const CLI::App& app, const std::string& word);

}  // namespace qorvex::apps
