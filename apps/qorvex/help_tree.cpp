#include "apps/qorvex/help_tree.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "apps/qorvex/command_tree.h"

namespace qorvex::apps {

namespace {

// "--std-dev, --sd X (required)"
std::string TitleOf(const CLI::Option& option) {
  std::string title;
  for (const std::string& name : NamesOf(option)) title += (title.empty() ? "" : ", ") + name;
  if (option.get_positional()) title = option.get_name(true);
  const std::string value =
      option.get_option_text().empty() ? option.get_type_name() : option.get_option_text();
  if (option.get_items_expected_max() != 0 && !value.empty()) title += ' ' + value;
  return title + (option.get_required() && !option.get_positional() ? " (required)" : "");
}

// The sections of the text below the options: a line that ends with a colon is the title of the
// lines below it.
std::vector<HelpEntry> SectionsOf(const std::string& footer) {
  std::vector<HelpEntry> sections;
  std::istringstream lines(footer);
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && !line.starts_with(' ') && line.ends_with(':')) {
      sections.push_back({line.substr(0, line.size() - 1), ""});
    } else if (!sections.empty()) {
      sections.back().text +=
          line.substr(std::min(line.find_first_not_of(' '), line.size())) + '\n';
    }
  }
  for (HelpEntry& section : sections) section.text.erase(section.text.find_last_not_of('\n') + 1);
  return sections;
}

using Entries = std::vector<HelpEntry> HelpNode::*;

// Moves what three quarters of the commands or more have in common to the node above them.
void Hoist(HelpNode& node, Entries entries) {
  const std::size_t least = (3 * node.commands.size() + 3) / 4;
  std::vector<HelpEntry> candidates;
  for (const HelpNode& command : node.commands) {
    for (const HelpEntry& entry : command.*entries)
      if (std::ranges::count(candidates, entry) == 0) candidates.push_back(entry);
  }
  for (HelpEntry& entry : candidates) {
    const auto lacks = [&](const HelpNode& command) {
      return std::ranges::count(command.*entries, entry) == 0;
    };
    std::vector<std::string> without;
    for (const HelpNode& command : node.commands)
      if (lacks(command)) without.push_back(command.name);
    if (node.commands.size() - without.size() < least) continue;
    for (HelpNode& command : node.commands) std::erase(command.*entries, entry);
    entry.exceptions.insert(entry.exceptions.end(), without.begin(), without.end());
    (node.*entries).push_back(std::move(entry));
  }
}

}  // namespace

HelpNode HelpTree(const CLI::App& command) {
  HelpNode node = {.name = command.get_name(),
                   .aliases = command.get_aliases(),
                   .summary = command.get_description(),
                   .sections = SectionsOf(command.get_footer()),
                   .word = WordForCommands(command)};
  for (const CLI::Option* const option : OptionsOf(command)) {
    auto& entries = option->get_positional() ? node.positionals : node.options;
    if (option != command.get_help_ptr())
      entries.push_back({TitleOf(*option), option->get_description()});
  }
  for (const CLI::App* const below : CommandsOf(command)) node.commands.push_back(HelpTree(*below));
  for (const Entries entries : {&HelpNode::positionals, &HelpNode::options, &HelpNode::sections})
    Hoist(node, entries);
  return node;
}

}  // namespace qorvex::apps
