// Runs the built program: the commands in commands/*.txt, and the examples on the page about the
// command line.

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "apps/shell.h"
#include "qorvex/base/version.h"

namespace qorvex::apps {

// Lines in commands/*.txt:
// - "$ " and a command, then its output, then a blank line;
// - "@ left => right" repeats the command and its output with left and right in place of their "@".
//   Without an output, right is the output. In it, "|" stands for a line break;
// - "# " and a comment.
class Commands : public testing::TestWithParam<const char*> {};

std::string Filled(std::string text, const std::string& value) {
  const std::size_t gap = text.find('@');
  return gap == text.npos ? text : text.replace(gap, 1, value);
}

TEST_P(Commands, PrintWhatTheirFileSays) {
  std::ifstream file(std::string(QORVEX_COMMANDS "/") + GetParam() + ".txt");
  ASSERT_TRUE(file);
  std::string command, output;
  for (std::string line; std::getline(file, line) || !command.empty();) {
    if (!file || line.empty()) {
      if (command.find('@') == command.npos) ExpectOutput(command, output);
      command = output = "";
    } else if (line.starts_with("$ ")) {
      command = line.substr(2);
    } else if (line.starts_with("@ ")) {
      const std::size_t arrow = line.find(" =>");
      ASSERT_NE(arrow, line.npos) << line;
      std::string right = line.substr(std::min(arrow + 4, line.size()));
      std::ranges::replace(right, '|', '\n');
      ExpectOutput(Filled(command, line.substr(2, arrow - 2)),
                   Filled(output.empty() ? "@\n" : output, right));
    } else if (!line.starts_with("# ")) {
      output += line + '\n';
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Files, Commands,
                         testing::Values("compare", "describe", "dist", "fit", "matrix", "program",
                                         "random", "test"),
                         [](const auto& file) { return file.param; });

TEST(Program, PrintsItsVersion) {
  ExpectOutput("qorvex --version", "qorvex " QORVEX_VERSION "\n");
}

// Every example on the page about the command line prints what the page shows. In blocks that start
// with ```console, a line that starts with "$ " is a command, and the lines below are its output.
TEST(Documentation, ShowsTheOutputOfTheProgram) {
  std::vector<std::pair<std::string, std::string>> examples;
  std::ifstream page(QORVEX_COMMAND_LINE_PAGE);
  bool in_block = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("```")) {
      in_block = line == "```console";
    } else if (in_block && line.starts_with("$ ")) {
      examples.emplace_back(line.substr(2), "");
    } else if (in_block && !examples.empty()) {
      examples.back().second += line + '\n';
    }
  }
  EXPECT_GE(examples.size(), 5U);
  for (const auto& [command, output] : examples) EXPECT_EQ(Shell(command), output) << command;
}

}  // namespace qorvex::apps
