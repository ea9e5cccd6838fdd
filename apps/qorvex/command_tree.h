#pragma once

/// @file
/// The tree of commands: what messages, manual pages and completion say about it.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace qorvex::apps {

/// Lays out --help: a group of options appears under its description, such as "One of:".
class HelpFormatter : public CLI::Formatter {
 public:
  [[nodiscard]] std::string make_expanded(const CLI::App* group) const override;
};

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

/// The options and positional arguments of a command, those in groups included.
[[nodiscard]] std::vector<const CLI::Option*> OptionsOf(const CLI::App& command);

/// The names of an option: "--count", "-n"; none for a positional argument.
[[nodiscard]] std::vector<std::string> NamesOf(const CLI::Option& option);

/// The command below a command that has this name; null if it has no such command.
[[nodiscard]] const CLI::App* FindCommand(const CLI::App& app, const std::string& word);

/// Makes an app require exactly one of the commands that it has. --help and messages call them by
/// the given word: "distribution".
void RequireOneCommand(CLI::App& app, const std::string& word);

}  // namespace qorvex::apps
