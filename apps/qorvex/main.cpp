#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <new>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/version.h"

namespace qorvex::apps {

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kBadInput = 2 };

int RefuseUsage(const std::string& what) {
  WriteRemark(what);
  WriteRemark("--help describes the program and its commands");
  return kBadInput;
}

std::string NamesOf(const std::vector<const CLI::App*>& commands) {
  std::string names;
  for (const CLI::App* const command : commands)
    names += (names.empty() ? "" : ", ") + command->get_name();
  return names;
}

// The error message for arguments that the parser did not accept: a command that does not exist, or
// the unexpected arguments in their order. The parser leaves arguments after "--" to the parents of
// the command that they were given to.
std::string WhatIsUnexpected(const CLI::App& program, bool has_end_of_options) {
  const CLI::App* app = &program;
  std::vector<std::string> unexpected = app->remaining();
  std::string path;
  while ((unexpected.empty() || has_end_of_options) && !app->get_subcommands().empty()) {
    app = app->get_subcommands().front();
    path += (path.empty() ? "" : " ") + app->get_name();
    const std::vector<std::string> texts = app->remaining();
    unexpected.insert(unexpected.begin(), texts.begin(), texts.end());
  }
  std::erase(unexpected, "--");
  if (!path.empty()) path += ": ";
  // Option groups are apps without a name.
  const auto commands =
      app->get_subcommands([](const CLI::App* command) { return !command->get_name().empty(); });
  const bool is_command = !commands.empty() && app->get_subcommands().empty() &&
                          !has_end_of_options && !unexpected.front().starts_with('-');
  if (is_command) {
    return path + "there is no command " + Excerpt(unexpected.front()) + "; the commands are " +
           NamesOf(commands);
  }
  std::string what = path + "unexpected ";
  for (const std::string& text : unexpected)
    what += (what.ends_with(' ') ? "" : ", ") + Excerpt(text);
  return what;
}

// What is wrong with the number of values of an option, in plainer words than the parser's.
std::string WhatIsMismatched(const CLI::ArgumentMismatch& error) {
  const std::string text = error.what();
  const std::string option = text.substr(0, text.find(": "));
  if (text.ends_with(" missing")) return option + ": the value is missing";
  if (text.find(": At Most 1 ") != std::string::npos) return option + ": given more than once";
  return text;
}

int Run(int argc, char** argv) {
  CLI::App program(
      "Statistics, matrices, distributions and random variates, with 64 bits of mantissa.",
      "qorvex");
  program.set_version_flag("--version", "qorvex " QORVEX_VERSION, "Print the version and exit");
  AddDescribe(program);
  AddCorrelate(program);
  AddGrouped(program);
  AddCompare(program);
  AddFit(program);
  AddTestCommands(program);
  AddMatrix(program);
  AddDist(program);
  AddRandom(program);
  AddSelfTest(program);
  // At most one command, so that a file may have the name of another.
  program.require_subcommand(0, 1);

  try {
    program.parse(argc, argv);
    // Checked here and not by require_subcommand, so that the message can quote a misspelt command.
    if (program.get_subcommands().empty()) throw CLI::RequiredError("A command");
    return kSuccess;
  } catch (const CLI::ExtrasError&) {
    return RefuseUsage(WhatIsUnexpected(
        program, std::find(argv, argv + argc, std::string_view("--")) != argv + argc));
  } catch (const CLI::ArgumentMismatch& error) {
    return RefuseUsage(WhatIsMismatched(error));
  } catch (const CLI::Error& error) {
    // --help and --version end here, too.
    if (error.get_exit_code() != 0) return RefuseUsage(error.what());
    std::ostringstream text;
    program.exit(error, text);
    WriteResult(text.str());
    return kSuccess;
  }
}

}  // namespace

}  // namespace qorvex::apps

int main(int argc, char** argv) {
  using namespace qorvex::apps;
  try {
    return Run(argc, argv);
  } catch (const InputError& error) {
    WriteRemark(error.what());
    return kBadInput;
  } catch (const std::bad_alloc&) {
    WriteRemark("out of memory");
  } catch (const std::exception& error) {
    WriteRemark(error.what());
  }
  return kFailure;
}
