#pragma once

/// @file
/// What --help says about a command and everything below it, without repetition.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace qorvex::apps {

/// A title and what it is about: an option or a section of the text.
struct HelpEntry {
  std::string title;
  std::string text;
  /// The commands below that do not have it.
  std::vector<std::string> exceptions = {};

  bool operator==(const HelpEntry&) const = default;
};

/// A command with what belongs to it and to no command above it.
struct HelpNode {
  std::string name;
  std::vector<std::string> aliases = {};
  std::string summary;
  std::vector<HelpEntry> positionals = {};
  std::vector<HelpEntry> options = {};
  std::vector<HelpEntry> sections = {};
  /// What the commands below it are called.
  std::string word = {};
  std::vector<HelpNode> commands = {};
};

/// The commands from this one downwards. What three quarters of the commands below one or more have
/// in common belongs to it.
[[nodiscard]] HelpNode HelpTree(const CLI::App& command);

}  // namespace qorvex::apps
