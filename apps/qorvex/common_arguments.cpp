#include "apps/qorvex/common_arguments.h"

#include <algorithm>
#include <unistd.h>

#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

const char* const kExitStatusHelp = R"(

Exit status:
  0 success; 2 wrong usage or bad input; 1 any other failure.)";

const char* const kNothingPrintedHelp = R"( Nothing is
  printed on standard output unless all input is valid.)";

namespace {

// Prevents the parser of options from reading 010 as eight and 0x10 as sixteen. Returns the error.
std::string PlainDecimal(std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) {
    return Excerpt(text) + " is not a whole number from 0 to " + Int2EStr(kMostDecimals);
  }
  text.erase(0, std::min(text.find_first_not_of('0'), text.size() - 1));
  return "";
}

}  // namespace

void AddFile(CLI::App& command, std::string& file, const std::string& name,
             const std::string& description) {
  CLI::Option* const option =
      command.add_option(name, file, description + "; - is standard input")->type_name("");
  if (::isatty(STDIN_FILENO) == 1) {
    option->required();
  } else {
    file = "-";
  }
}

void AddDecimals(CLI::App& command, std::optional<int>& decimals, const std::string& description) {
  command.add_option("--decimals", decimals, description)
      ->transform(CLI::Validator(PlainDecimal, ""))
      ->check(CLI::Range(0, kMostDecimals))
      ->option_text("N (0 to 255)");
}

CLI::Option* AddThreads(CLI::App& command, unsigned& threads, const std::string& description) {
  return command.add_option("--threads", threads, description)
      ->check(CLI::Range(1U, kMostThreads))
      ->option_text("N (1 to 256)");
}

void AddJson(CLI::App& command, bool& json) {
  command.add_flag("--json", json,
                   "One JSON document; each figure is the shortest text that keeps all 80 bits,\n"
                   "or null if it does not exist");
}

void RequireOneCommand(CLI::App& app, const std::string& name) {
  app.require_subcommand(0, 1);
  // Checked here and not by require_subcommand, so that the message can quote a misspelt command.
  app.callback([&app, name] {
    if (app.get_subcommands().empty()) throw CLI::RequiredError(name);
  });
}

}  // namespace qorvex::apps
