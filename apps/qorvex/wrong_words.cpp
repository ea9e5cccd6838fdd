#include "apps/qorvex/wrong_words.h"

#include <algorithm>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/common/similar_words.h"
#include "apps/qorvex/command_tree.h"

namespace qorvex::apps {

namespace {

// Finds the paths of all commands below the app that have this name.
void AppendPaths(const CLI::App& app, const std::string& name, std::vector<std::string>& paths) {
  for (const CLI::App* const command : CommandsOf(app)) {
    if (command->check_name(name)) paths.push_back(PathOf(*command));
    AppendPaths(*command, name, paths);
  }
}

// The commands below the app that the word may stand for.
std::vector<std::string> SimilarCommands(const CLI::App& app, const std::string& word) {
  std::vector<std::string> names;
  for (const CLI::App* const command : CommandsOf(app)) {
    names.push_back(command->get_name());
    const std::vector<std::string>& aliases = command->get_aliases();
    names.insert(names.end(), aliases.begin(), aliases.end());
  }
  std::vector<std::string> similar;
  for (const std::string& name : SimilarWords(word, names)) {
    const std::string& command = FindCommand(app, name)->get_name();
    if (std::ranges::find(similar, command) == similar.end()) similar.push_back(command);
  }
  return similar;
}

std::string UnknownOption(const CLI::App& app, const std::string& word) {
  std::vector<std::string> options;
  for (const CLI::Option* const option : OptionsOf(app)) {
    if (option == app.get_help_ptr()) continue;
    for (const std::string& name : NamesOf(*option)) options.push_back(name);
  }
  const std::string name = word.substr(0, word.find('='));
  const std::vector<std::string> right = SimilarWords(name, options);
  std::string what = "unknown option " + Excerpt(name);
  if (!right.empty()) return what + "; did you mean " + Alternatives(right) + '?';
  for (std::size_t i = 0; i < options.size(); ++i)
    what += (i == 0 ? "; the options are " : ", ") + options[i];
  return what;
}

// The command line as far as the parser understood it.
struct Parsed {
  const CLI::App* command;
  // What it did not understand, in order.
  std::vector<std::string> rest;
};

// The parser leaves arguments after "--" to the parents of the command that they were given to.
Parsed Understood(const CLI::App& program, bool has_end_of_options) {
  Parsed parsed = {&program, program.remaining()};
  while ((parsed.rest.empty() || has_end_of_options) &&
         !parsed.command->get_subcommands().empty()) {
    parsed.command = parsed.command->get_subcommands().front();
    const std::vector<std::string> texts = parsed.command->remaining();
    parsed.rest.insert(parsed.rest.begin(), texts.begin(), texts.end());
  }
  std::erase(parsed.rest, "--");
  return parsed;
}

// What the parser did not understand; empty if that is nothing.
std::string WhatIsUnknown(const CLI::App& program, bool has_end_of_options) {
  const auto [command, rest] = Understood(program, has_end_of_options);
  if (rest.empty()) return "";
  const bool awaits_command = !CommandsOf(*command).empty() && command->get_subcommands().empty();
  if (awaits_command && !has_end_of_options && !rest.front().starts_with('-'))
    return UnknownCommand(*command, rest.front());
  const std::string path = PathOf(*command);
  std::string what = path.empty() ? "" : path + ": ";
  // Words behind an unknown option may be meant as its value.
  const auto option = std::ranges::find_if(
      rest, [](const std::string& text) { return text.size() > 1 && text.starts_with('-'); });
  if (!has_end_of_options && option != rest.end()) return what + UnknownOption(*command, *option);
  what += "unexpected ";
  for (const std::string& text : rest) what += (what.ends_with(' ') ? "" : ", ") + Excerpt(text);
  return what;
}

// What is wrong with the number of values of an option, in plainer words than the parser's.
std::string WhatIsMismatched(const std::string& text) {
  const std::string option = text.substr(0, text.find(": "));
  if (text.ends_with(" missing")) return option + ": the value is missing";
  if (text.find(": At Most 1 ") != std::string::npos) return option + ": given more than once";
  return text;
}

}  // namespace

std::string UnknownCommand(const CLI::App& app, const std::string& word) {
  const std::string path = PathOf(app);
  const std::string kind = WordForCommands(app);
  const std::string what =
      (path.empty() ? "" : path + ": ") + "unknown " + kind + ' ' + Excerpt(word);
  std::vector<std::string> right = SimilarCommands(app, word);
  if (right.empty()) AppendPaths(app, word, right);
  return right.empty() ? what + "; the " + kind + "s are " + NamesOfCommands(app)
                       : what + "; did you mean " + Alternatives(right) + '?';
}

std::string WhatIsWrong(const CLI::Error& error, const CLI::App& program, bool has_end_of_options) {
  if (dynamic_cast<const CLI::CallForVersion*>(&error) != nullptr) return "";
  const std::string unknown = WhatIsUnknown(program, has_end_of_options);
  if (!unknown.empty()) return unknown;
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
    return WhatIsMismatched(error.what());
  return error.get_exit_code() == 0 ? "" : error.what();
}

}  // namespace qorvex::apps
