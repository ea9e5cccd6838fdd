#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <memory>
#include <new>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/completion.h"
#include "apps/qorvex/text_output.h"
#include "apps/qorvex/wrong_words.h"
#include "qorvex/base/version.h"

namespace qorvex::apps {

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kBadInput = 2 };

int RefuseUsage(const std::string& what) {
  WriteRemark(what);
  WriteRemark("--help describes the program and its commands");
  return kBadInput;
}

struct Command {
  const char* name;
  void (*add)(CLI::App& program);
};

// In the order of --help.
constexpr Command kCommands[] = {
    {"describe", AddDescribe}, {"correlate", AddCorrelate},
    {"grouped", AddGrouped},   {"compare", AddCompare},
    {"fit", AddFit},           {"test", AddTestCommands},
    {"matrix", AddMatrix},     {"dist", AddDist},
    {"random", AddRandom},     {"selftest", AddSelfTest},
    {"help", AddHelp},
};

// Adds the command that the first argument names; all of them if it names none, and for help. Their
// thousands of options take several milliseconds.
void AddCommands(CLI::App& program, const std::string& first_argument) {
  const bool is_named = first_argument != "help" &&
                        std::ranges::count(kCommands, first_argument, &Command::name) != 0;
  for (const auto& [name, add] : kCommands)
    if (!is_named || first_argument == name) add(program);
}

int Run(int argc, char** argv) {
  CLI::App program(
      "Statistics, matrices, distributions and random variates, with 64 bits of mantissa.",
      "qorvex");
  program.set_version_flag("--version", "qorvex " QORVEX_VERSION, "Print the version and exit");
  program.formatter(std::make_shared<HelpFormatter>());
  program.ignore_case();
  AddCommands(program, argc > 1 ? CLI::detail::to_lower(argv[1]) : "");
  RequireOneCommand(program, "command");

  if (argc > 1 && argv[1] == std::string_view("complete")) {
    WriteResult(Completions(program, std::vector<std::string>(argv + 2, argv + argc)));
    return kSuccess;
  }
  try {
    program.parse(argc, argv);
    return kSuccess;
  } catch (const CLI::Error& error) {
    const bool has_end = std::find(argv, argv + argc, std::string_view("--")) != argv + argc;
    const std::string what = WhatIsWrong(error, program, has_end);
    if (!what.empty()) return RefuseUsage(what);
    // --help, --version and --list end here, too.
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
