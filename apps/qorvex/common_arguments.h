#pragma once

/// @file
/// Arguments and --help texts that several commands share.

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

namespace qorvex::apps {

/// The exit status.
extern const char* const kExitStatusHelp;
/// Added to the former by commands that print nothing until the whole result is known.
extern const char* const kNothingPrintedHelp;

/// Adds a file to read, which may be left out if standard input is no terminal. All variables
/// passed to these functions must outlive the parsing.
void AddFile(CLI::App& command, std::string& file, const std::string& name,
             const std::string& description);

/// The largest argument of --threads.
inline constexpr unsigned kMostThreads = 256;

/// Adds --threads, 1 to kMostThreads.
CLI::Option* AddThreads(CLI::App& command, unsigned& threads, const std::string& description);

}  // namespace qorvex::apps
