// Runs every example of the page on the command line and compares what it prints with what the page
// shows.

#include "apps/shell.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace qorvex::cli {
namespace {

struct Example {
  int line;
  std::string command;
  std::string output;
};

// In blocks that start with ```console, a line that starts with "$ " is a command and the lines
// below are its output.
std::vector<Example> ExamplesOf(const std::string& page) {
  std::vector<Example> examples;
  std::istringstream text(page);
  std::string line;
  bool in_block = false;
  for (int number = 1; std::getline(text, line); ++number) {
    if (line.starts_with("```")) {
      in_block = line == "```console";
    } else if (in_block && line.starts_with("$ ")) {
      examples.push_back({number, line.substr(2), ""});
    } else if (in_block && !examples.empty()) {
      examples.back().output += line + '\n';
    }
  }
  return examples;
}

TEST(Documentation, ShowsWhatTheProgramPrints) {
  const std::vector<Example> examples = ExamplesOf(FileText(QORVEX_COMMAND_LINE_PAGE));
  EXPECT_GE(examples.size(), 5U);
  for (const Example& example : examples) {
    SCOPED_TRACE("line " + std::to_string(example.line) + ": " + example.command);
    EXPECT_EQ(Shell("{ " + example.command + "\n} 2>&1").out, example.output);
  }
}

}  // namespace
}  // namespace qorvex::cli
