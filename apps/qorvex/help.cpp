#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/text_output.h"
#include "apps/qorvex/wrong_words.h"

namespace qorvex::apps {

namespace {

const CLI::App& FindCommand(const CLI::App& program, const std::vector<std::string>& words) {
  const CLI::App* command = &program;
  for (const std::string& word : words) {
    const std::vector<const CLI::App*> commands = CommandsOf(*command);
    const auto next = std::ranges::find_if(
        commands, [&word](const CLI::App* below) { return below->check_name(word); });
    if (next == commands.end()) throw CLI::ValidationError(UnknownCommand(*command, word));
    command = *next;
  }
  return *command;
}

}  // namespace

void AddHelp(CLI::App& program) {
  CLI::App& help = *program.add_subcommand("help", "How a command is used: qorvex help dist");
  const auto words = std::make_shared<std::vector<std::string>>();
  help.add_option("COMMAND", *words, "The words of a command. Default: the program")->type_name("");
  help.callback([&program, words] {
    const CLI::App& command = FindCommand(program, *words);
    const std::string name = program.get_name() + (words->empty() ? "" : " ") + PathOf(command);
    WriteResult(command.get_formatter()->make_help(&command, name, CLI::AppFormatMode::Normal));
  });
}

}  // namespace qorvex::apps
