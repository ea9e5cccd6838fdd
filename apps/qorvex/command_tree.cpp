#include "apps/qorvex/command_tree.h"

#include <algorithm>
#include <cctype>
#include <memory>

namespace qorvex::apps {

namespace {

// What the formatter of --help calls a command below the one that it describes.
constexpr const char* kCommandLabel = "SUBCOMMAND";

}  // namespace

std::string HelpFormatter::make_expanded(const CLI::App* group) const {
  return make_group(group->get_description(), false,
                    group->get_options([group](const CLI::Option* option) {
                      return option != group->get_help_ptr();
                    }));
}

void AddAliases(CLI::App& command, const std::vector<const char*>& aliases) {
  for (const char* const alias : aliases) command.alias(alias);
}

std::string PathOf(const CLI::App& command) {
  std::string path;
  for (const CLI::App* app = &command; app->get_parent() != nullptr; app = app->get_parent())
    path = app->get_name() + (path.empty() ? "" : " ") + path;
  return path;
}

std::vector<const CLI::App*> CommandsOf(const CLI::App& app) {
  // Option groups are apps without a name.
  return app.get_subcommands([](const CLI::App* command) { return !command->get_name().empty(); });
}

std::string NamesOfCommands(const CLI::App& app) {
  std::string names;
  for (const CLI::App* const command : CommandsOf(app))
    names += (names.empty() ? "" : ", ") + command->get_name();
  return names;
}

std::string WordForCommands(const CLI::App& app) {
  return CLI::detail::to_lower(app.get_formatter()->get_label(kCommandLabel));
}

std::vector<const CLI::Option*> OptionsOf(const CLI::App& command) {
  std::vector<const CLI::Option*> options = command.get_options();
  for (const CLI::App* const group : command.get_subcommands({})) {
    if (!group->get_name().empty()) continue;
    for (const CLI::Option* const option : group->get_options())
      if (option != group->get_help_ptr()) options.push_back(option);
  }
  return options;
}

std::vector<std::string> NamesOf(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  for (const std::string& name : option.get_snames()) names.push_back('-' + name);
  return names;
}

const CLI::App* FindCommand(const CLI::App& app, const std::string& word) {
  const std::vector<const CLI::App*> commands = CommandsOf(app);
  const auto found = std::ranges::find_if(
      commands, [&word](const CLI::App* command) { return command->check_name(word); });
  return found == commands.end() ? nullptr : *found;
}

void RequireOneCommand(CLI::App& app, const std::string& word) {
  app.formatter(std::make_shared<HelpFormatter>());
  std::string label = word;
  for (char& c : label) c = static_cast<char>(std::toupper(c));
  app.get_formatter()->label(kCommandLabel, label);
  const std::string heading = label[0] + word.substr(1) + 's';
  for (CLI::App* const command : app.get_subcommands({})) command->group(heading);
  app.require_subcommand(0, 1);
  // Checked here and not by require_subcommand, so that the message can name the commands.
  app.callback([&app, word] {
    if (!app.get_subcommands().empty()) return;
    const std::string path = PathOf(app);
    throw CLI::ValidationError((path.empty() ? "" : path + ": ") + "a " + word +
                               " is missing; the " + word + "s are " + NamesOfCommands(app));
  });
}

}  // namespace qorvex::apps
