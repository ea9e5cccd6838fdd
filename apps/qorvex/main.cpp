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

int Run(int argc, char** argv) {
  CLI::App program(
      "Statistics, matrices, distributions and random variates, with 64 bits of mantissa.",
      "qorvex");
  program.set_version_flag("--version", "qorvex " QORVEX_VERSION, "Print the version and exit");
  program.formatter(std::make_shared<HelpFormatter>());
  program.ignore_case();
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
  AddHelp(program);
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
