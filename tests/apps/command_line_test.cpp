// Runs the built program: the commands in commands/*.txt, and the examples on the pages about the
// command line.

#include <algorithm>
#include <filesystem>
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
class Commands : public testing::TestWithParam<std::filesystem::path> {};

std::vector<std::filesystem::path> FilesIn(const char* folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    files.push_back(entry.path());
  std::ranges::sort(files);
  return files;
}

std::string NameOf(const testing::TestParamInfo<std::filesystem::path>& file) {
  return file.param.stem().string();
}

std::string Filled(std::string text, const std::string& value) {
  const std::size_t gap = text.find('@');
  return gap == text.npos ? text : text.replace(gap, 1, value);
}

TEST_P(Commands, PrintWhatTheirFileSays) {
  std::ifstream file(GetParam());
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
INSTANTIATE_TEST_SUITE_P(Files, Commands, testing::ValuesIn(FilesIn(QORVEX_COMMANDS)), NameOf);

TEST(Program, PrintsItsVersion) {
  ExpectOutput("qorvex --version", "qorvex " QORVEX_VERSION "\n");
}

// Every example on the pages about the command line prints what the page shows. In blocks that
// start with ```console, a line that starts with "$ " is a command, and the lines below are its
// output.
class Documentation : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Documentation, ShowsTheOutputOfTheProgram) {
  std::vector<std::pair<std::string, std::string>> examples;
  std::ifstream page(GetParam());
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
  EXPECT_FALSE(examples.empty());
  for (const auto& [command, output] : examples) EXPECT_EQ(Shell(command), output) << command;
}
INSTANTIATE_TEST_SUITE_P(Pages, Documentation,
                         testing::ValuesIn(FilesIn(QORVEX_DOCUMENTS "/command_line")), NameOf);
INSTANTIATE_TEST_SUITE_P(Overview, Documentation,
                         testing::Values(QORVEX_DOCUMENTS "/command_line.md"), NameOf);

}  // namespace qorvex::apps
