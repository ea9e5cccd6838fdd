#pragma once

/// @file
/// Arguments and --help texts that several commands share.

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

namespace qorvex::apps {

/// Lays out --help: a group of options appears under its description, such as "One of:".
class HelpFormatter : public CLI::Formatter {
 public:
  [[nodiscard]] std::string make_expanded(const CLI::App* group) const override;
};

/// Delimiters, quotes, encodings and numbers.
extern const char* const kTextHelp;
/// The exit status.
extern const char* const kExitStatusHelp;
/// Added to the former by commands that print nothing until the whole result is known.
extern const char* const kNothingPrintedHelp;

/// Adds a file to read. All variables passed to these functions must outlive the parsing.
void AddFile(CLI::App& command, std::string& file, const std::string& name,
             const std::string& description);

/// Adds --delimiter; the variable stays empty if it is not given.
void AddDelimiter(CLI::App& command, std::optional<char>& delimiter);

/// The largest argument of --decimals.
inline constexpr int kMostDecimals = 255;

/// Adds --decimals, 0 to kMostDecimals; the variable stays empty if it is not given.
void AddDecimals(CLI::App& command, std::optional<int>& decimals, const std::string& description);

/// The largest argument of --threads.
inline constexpr unsigned kMostThreads = 256;

/// Adds --threads, 1 to kMostThreads.
CLI::Option* AddThreads(CLI::App& command, unsigned& threads, const std::string& description);

/// Adds --json.
void AddJson(CLI::App& command, bool& json);

/// Makes a command known by other names as well.
void AddAliases(CLI::App& command, const std::vector<const char*>& aliases);

/// The words of a command after the program's name: "dist normal"; empty for the program.
[[nodiscard]] std::string PathOf(const CLI::App& command);

/// The commands below a command, in the order of --help.
[[nodiscard]] std::vector<const CLI::App*> CommandsOf(const CLI::App& app);

/// The names of the commands below a command, with commas between them.
[[nodiscard]] std::string NamesOfCommands(const CLI::App& app);

/// What the commands below a command are called: the word given to RequireOneCommand.
[[nodiscard]] std::string WordForCommands(const CLI::App& app);

/// Makes an app require exactly one of the commands that it has. --help and messages call them by
/// the given word: "distribution".
void RequireOneCommand(CLI::App& app, const std::string& word);

}  // namespace qorvex::apps
