#include "apps/qorvex/common_arguments.h"

#include <unistd.h>

#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

const char* const kExitStatusHelp = R"(

Exit status:
  0 success; 2 wrong usage or bad input; 1 any other failure.)";

const char* const kNothingPrintedHelp = R"( Nothing is
  printed on standard output unless all input is valid.)";

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

CLI::Option* AddThreads(CLI::App& command, unsigned& threads, const std::string& description) {
  return command.add_option("--threads", threads, description)
      ->check(CLI::Range(1U, kMostThreads))
      ->option_text("N (1 to 256)");
}

}  // namespace qorvex::apps
