// Runs the built program.

#include <fstream>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "apps/shell.h"
#include "qorvex/base/version.h"

namespace qorvex::cli {

// Below its output stands the exit status of a command that fails.
void ExpectOutput(const std::string& command, const std::string& output) {
  const std::string tell_failure = "\nstatus=$?; [ $status = 0 ] || echo exit status $status";
  EXPECT_EQ(Shell(command + tell_failure), output) << command;
}

TEST(Describe, ReportsColumnsOneBelowTheOther) {
  // By hand: mean 5, squares about it 32; the third and fourth moments about it are 42/8 and 356/8.
  ExpectOutput(R"(printf '2\n4\n4\n4\n5\n5\n7\n9\n' | qorvex describe - --population --decimals 3 |
                  grep -E 'Var|Kurt|Skew')",
               "Variance:\t4.000\nKurtosis:\t-0.219\nSkew:\t0.656\n");
  ExpectOutput(R"(printf 'a b\n1 2\n' | qorvex describe - --column b --column a | grep -n Column)",
               "1:Column 2: b\n19:Column 1: a\n");
  ExpectOutput(R"(printf '"a\tb"\n1\n' | qorvex describe - | head -n 1)", "Column 1: a\\tb\n");
}

TEST(Describe, WritesJsonWithNullForFiguresThatDoNotExist) {
  ExpectOutput(R"(printf '"speed\n\\",\n1,\n3,4\n' |
                  qorvex describe - --json --skip-empty --population |
                  grep -E 'file|popul|column"|name|skip' | tr -d ' \n')",
               "qorvex: standard input: column 2: skipped 1 empty cell\n"
               R"("file":"-","population":true,"column":1,"name":"speed\n\\","skipped":0,)"
               R"("column":2,"name":null,"skipped":1,)");
  // Variance, standard deviation, skewness, kurtosis, mode.
  for (const auto& [input, figures] : {
           std::pair("7 | qorvex describe -", "null,null,null,null,7"),
           std::pair("7 | qorvex describe - --population", "0,0,null,null,7"),
           std::pair("1 3 | qorvex describe -", "2,1.4142135623730950488,null,null,null"),
           std::pair("1 2 3 | qorvex describe -", "1,1,0,null,null"),
           std::pair("7 7 7 7 | qorvex describe -", "0,0,null,null,7"),
           std::pair("1 1 3 3 | qorvex describe - --population", "1,1,0,-2,null"),
       }) {
    ExpectOutput(std::string("printf '%s\\n' ") + input +
                     R"( --json | grep -E 'var|dev|skew|kurt|mode' | sed 's/.*: //' | tr -d '\n')",
                 figures);
  }
}

TEST(Describe, RefusesBadInputWithStatusTwo) {
  ExpectOutput("qorvex describe nosuch.csv 2>/dev/null", "exit status 2\n");
  ExpectOutput("qorvex describe .", "qorvex: .: Is a directory\nexit status 2\n");
  ExpectOutput(R"(printf '1,2\n3,x\n' | qorvex describe - --column 2)",
               "qorvex: standard input:2: column 2: \"x\" is not a number\nexit status 2\n");
  ExpectOutput(R"(printf '1 1e4000\n2 1\n3 4\n4 5\n' | qorvex describe -)",
               "qorvex: standard input: column 2: the values are too large; their statistics are "
               "beyond the range of extended precision\nexit status 2\n");
}

TEST(Describe, ReadsDecimalsAsDecimals) {
  ExpectOutput("echo 1 | qorvex describe - --decimals 010 | grep Mean", "Mean:\t1.0000000000\n");
}

TEST(Describe, RefusesWrongUsageWithStatusTwo) {
  for (const char* arguments :
       {"", "decsribe x", "describe", "describe - --decimals -1", "describe - --decimals 256",
        "describe - --decimals x", "describe - --decimals 0x10", "describe - --delimiter 5",
        "describe - --delimiter ''", "describe - --delimiter ab", "describe - --nosuch",
        "describe - --column 1 extra", "describe - --column"}) {
    const std::string output = Shell(std::string("echo 1 | qorvex ") + arguments + "; echo $?");
    EXPECT_TRUE(
        output.starts_with("qorvex: ") &&
        output.ends_with("\nqorvex: --help tells what the program and its commands take\n2\n"))
        << arguments << '\n'
        << output;
  }
}

TEST(Describe, TakesDelimitersByCharacterAndByWord) {
  for (const char* input_and_delimiter :
       {"1|2' | qorvex describe - --delimiter '|'", "1,2' | qorvex describe - --delimiter comma",
        "1;2' | qorvex describe - --delimiter=semicolon",
        "1\\t2' | qorvex describe - --delimiter tab",
        "1 \\t2' | qorvex describe - --delimiter space",
        "1  2' | qorvex describe - --delimiter ' '"}) {
    ExpectOutput(std::string("printf '") + input_and_delimiter + " | grep Maximum",
                 "Maximum:\t1.0000\nMaximum:\t2.0000\n");
  }
}

TEST(Program, TellsItsVersionAndHelpAndWhetherTheyCouldBeWritten) {
  ExpectOutput("qorvex --version", "qorvex " QORVEX_VERSION "\n");
  ExpectOutput("qorvex describe --help >/dev/null", "");
  ExpectOutput("qorvex describe --help | grep -o '^Exit status'", "Exit status\n");
  const std::string full = "qorvex: standard output: No space left on device\nexit status 1\n";
  ExpectOutput("qorvex --help >/dev/full", full);
  ExpectOutput("qorvex describe michelson_1879.csv >/dev/full", full);
}

// Every example of the page on the command line prints what the page shows. In blocks that start
// with ```console, a line that starts with "$ " is a command and the lines below are its output.
TEST(Documentation, ShowsWhatTheProgramPrints) {
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

}  // namespace qorvex::cli
