#pragma once

/// @file
/// What the shell offers when the tab key is pressed.

#include <CLI/CLI.hpp>
#include <span>
#include <string>

namespace qorvex::apps {

/// The words that may follow on a command line: a line each, with a tab and a description behind
/// the word. The last of the words is the one being typed, perhaps empty; the name of the program
/// is not among them. A line ":files" stands for the names of files.
[[nodiscard]] std::string Completions(const CLI::App& program, std::span<const std::string> words);

}  // namespace qorvex::apps
