#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <new>
#include <sstream>
#include <string>
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
  WriteRemark("--help tells what the program and its commands take");
  return kBadInput;
}

std::string NamesOf(const std::vector<const CLI::App*>& commands) {
  std::string names;
  for (const CLI::App* const command : commands)
    names += (names.empty() ? "" : ", ") + command->get_name();
  return names;
}

// The arguments that nothing takes, without the "--" that says that no options follow.
std::vector<std::string> Remaining(const CLI::App& app) {
  std::vector<std::string> texts = app.remaining();
  const auto end_of_options = std::find(texts.begin(), texts.end(), "--");
  if (end_of_options != texts.end()) texts.erase(end_of_options);
  return texts;
}

// What is wrong with arguments that nothing takes: a command that does not exist, or whatever
// stands too much, in the order in which it was given.
std::string WhatIsUnexpected(const CLI::App& program) {
  const CLI::App* app = &program;
  std::string path;
  while (Remaining(*app).empty() && !app->get_subcommands().empty()) {
    app = app->get_subcommands().front();
    path += (path.empty() ? "" : " ") + app->get_name();
  }
  if (!path.empty()) path += ": ";
  const std::vector<std::string> unexpected = Remaining(*app);
  // Groups of options are apps without a name.
  const auto commands =
      app->get_subcommands([](const CLI::App* command) { return !command->get_name().empty(); });
  const bool is_command =
      !commands.empty() && app->get_subcommands().empty() && !unexpected.front().starts_with('-');
  if (is_command) {
    return path + "there is no command " + Excerpt(unexpected.front()) + "; there are " +
           NamesOf(commands);
  }
  std::string what = path + "unexpected ";
  for (const std::string& text : unexpected)
    what += (what.ends_with(' ') ? "" : ", ") + Excerpt(text);
  return what;
}

int Run(int argc, char** argv) {
  CLI::App program(
      "Statistics, matrices, distributions and random variates, with 64 bits of mantissa.",
      "qorvex");
  program.set_version_flag("--version", "qorvex " QORVEX_VERSION, "Print the version and exit");
  AddDescribe(program);
  AddFit(program);
  AddMatrix(program);
  AddDist(program);
  AddRandom(program);
  // One command a call, so that a file may bear the name of another.
  program.require_subcommand(0, 1);

  try {
    program.parse(argc, argv);
    // Asked here and not by require_subcommand, so that a misspelt command is named.
    if (program.get_subcommands().empty()) throw CLI::RequiredError("A command");
    return kSuccess;
  } catch (const CLI::ExtrasError&) {
    return RefuseUsage(WhatIsUnexpected(program));
  } catch (const CLI::Error& error) {
    // The requests for help and for the version arrive here too.
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
