#pragma once

/// @file
/// Arguments that several commands take, and what their --help says alike.

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

namespace qorvex::apps {

/// What a --help says about delimiters, quotes, encodings and numbers.
extern const char* const kTextHelp;
/// What a --help says about the exit status.
extern const char* const kExitStatusHelp;
/// What follows it where a result is whole before any of it is printed.
extern const char* const kNothingPrintedHelp;

/// Adds a file to read. Like all variables here, it must outlive the parsing.
void AddFile(CLI::App& command, std::string& file, const std::string& name,
             const std::string& description);

/// Adds --delimiter, which stays empty when it is not given.
void AddDelimiter(CLI::App& command, std::optional<char>& delimiter);

/// The largest number that --decimals takes.
inline constexpr int kMostDecimals = 255;

/// Adds --decimals, 0 to kMostDecimals, which stays empty when it is not given.
void AddDecimals(CLI::App& command, std::optional<int>& decimals, const std::string& description);

/// Lets an app with subcommands take one of them a call, and complains of its absence by the given
/// name.
void RequireOneCommand(CLI::App& app, const std::string& name);

}  // namespace qorvex::apps
