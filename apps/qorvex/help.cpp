#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/manual_page.h"
#include "apps/qorvex/text_output.h"
#include "apps/qorvex/wrong_words.h"

namespace qorvex::apps {

namespace {

const CLI::App& CommandAt(const CLI::App& program, const std::vector<std::string>& path) {
  const CLI::App* command = &program;
  for (const std::string& word : path) {
    const CLI::App* const next = FindCommand(*command, word);
    if (next == nullptr) throw CLI::ValidationError(UnknownCommand(*command, word));
    command = next;
  }
  return *command;
}

}  // namespace

void AddHelp(CLI::App& program) {
  CLI::App& help = *program.add_subcommand("help", "How a command is used: qorvex help dist");
  const auto words = std::make_shared<std::vector<std::string>>();
  help.add_option("COMMAND", *words, "The words of a command. Default: the program")->type_name("");
  const auto as_manual = std::make_shared<bool>(false);
  help.add_flag("--man", *as_manual, "Print the manual page for man(1) to format");
  help.callback([&program, words, as_manual] {
    const CLI::App& command = CommandAt(program, *words);
    if (*as_manual) return WriteResult(ManualPage(command));
    const std::string name = program.get_name() + (words->empty() ? "" : " ") + PathOf(command);
    WriteResult(command.get_formatter()->make_help(&command, name, CLI::AppFormatMode::Normal));
  });
}

}  // namespace qorvex::apps
