// Runs the built program: describe, matrix, and what all commands have in common.

#include <fstream>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "apps/shell.h"
#include "qorvex/base/version.h"

namespace qorvex::apps {

TEST(Describe, ReportsColumnsOneBelowTheOther) {
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
  ExpectOutputs(R"(printf '%s\n' @ --json | grep -E 'var|dev|skew|kurt|mode' | sed 's/.*: //' |
                   tr -d '\n'; echo)",
                R"(
7 | qorvex describe - => null,null,null,null,7
7 | qorvex describe - --population => 0,0,null,null,7
1 2 3 | qorvex describe - => 1,1,0,null,null
1 1 3 3 | qorvex describe - --population => 1,1,0,-2,null
)");
}

// The page about the command line has further examples of the warnings.
TEST(Describe, WarnsOfARowThatMayNotBeAHeader) {
  ExpectOutputs("printf '@ 2>&1 >/dev/null | sed 's/.*because //; s/; --header or.*//'; echo", R"(
id,NA,1e9\na,1,3\nb,5,4' | qorvex fit line - --x 2 --y 3 => "id" is not a number, although "1e9" is|
1.2.3\n4' | qorvex describe - => "1.2.3" is not a number|
x,2\n1,3\n5,4' | qorvex describe - --header =>
)");
}

TEST(Describe, WarnsOfFiguresThatAreTooSmallForTheDecimals) {
  ExpectOutputs("printf @ 2>&1 >/dev/null | sed 's/.*column 1: //'; echo", R"(
'1e-9\n2e-9\n3e-9\n' | qorvex describe - --decimals 9 => 2 figures are too small for 9 decimals; --decimals 21 or --json shows all|
'1e-9\n2e-9\n3e-9\n' | qorvex describe - --decimals 21 =>
'1e-9\n2e-9\n3e-9\n' | qorvex describe - --json =>
'1e-200\n' | qorvex describe - --decimals 1 => 9 figures are too small for 1 decimal; --json shows all|
)");
  // Sums of numbers that cancel, and means of equal values, contain rounding errors. Values are not
  // sums, however small they are compared with others.
  ExpectOutputs("printf @ 2>&1 >/dev/null | sed 's/.*column 1: //; s/ or --json shows all//'; echo",
                R"(
'0.1\n-0.3\n0.2\n' | qorvex describe - =>
'0.1\n%.0s' `seq 77` | qorvex describe - =>
'1e15\n1e-5\n-1e15\n' | qorvex describe - => 1 figure is too small for 4 decimals; --decimals 8|
'3e-25\n0.2\n0.5\n0.9\n' | qorvex describe - => 1 figure is too small for 4 decimals; --decimals 28|
'0.0001\n-0.0001\n' | qorvex describe - --currency --decimals 2 => 6 figures are too small for 2 decimals; --decimals 11|
)");
}

TEST(Describe, AddsMoneyExactly) {
  // The extended sum cannot hold tenths beside so large an amount.
  ExpectOutput(R"({ echo 900000000000000.0001; yes 0.1 | head -n 200000; } |
                  qorvex describe - --currency --json |
                  grep -wE 'sum|minimum|median|maximum|range' | tr -d ' \n')",
               R"("sum":900000000020000.0001,"minimum":0.1000,"median":0.1,)"
               R"("maximum":900000000000000.0001,"range":899999999999999.9001,)");
  // Partial sums may be beyond the range; digits on one side of the point are enough.
  ExpectOutput(R"(x=400000000000000; printf '%s\n' $x $x $x -$x -$x +.5 '" -7. "' -0.0001 |
                  qorvex describe - --currency | grep Sum:)",
               "Sum:\t399999999999993.4999\n");
}

TEST(Describe, RefusesInexactAmounts) {
  for (const char* cell : {"0.12345", "1.00000", "-.00001", "1e3", "15E-1", "nan", "inf", "."}) {
    ExpectRefusal(std::string("printf 'id,total\\n1,2.5\\n2,") + cell +
                      "\\n' | qorvex describe - --currency --column total",
                  std::string("standard input:3: column 2 (total): \"") + cell +
                      "\" is not an amount: digits with at most four decimals");
  }
  const std::string largest = "922337203685477.5807";
  ExpectOutput("echo " + largest + " | qorvex describe - --currency | grep Sum:",
               "Sum:\t" + largest + "\n");
  ExpectRefusals("printf -- '@\\n' | qorvex describe - --currency", R"(
922337203685477.5808 => :1: column 1: "922337203685477.5808" is beyond the range of amounts
922337203685477.5807\n0.0001 => : column 1: the amounts are too large; their sum is beyond the range of amounts
-922337203685477.5807\n-0.0002 => : column 1: the amounts are too large; their sum is beyond the range of amounts
922337203685477.5807\n-0.0001 => : column 1: the amounts are too large; their range is beyond the range of amounts
)",
                 "standard input");
}

TEST(Describe, TakesDelimitersByCharacterAndByWord) {
  ExpectOutputs("printf '@ | grep Maximum | cut -f2", R"(
1|2' | qorvex describe - --delimiter '|' => 1.0000|2.0000
1,2' | qorvex describe - --delimiter comma => 1.0000|2.0000
1;2' | qorvex describe - --delimiter=semicolon => 1.0000|2.0000
1\t2' | qorvex describe - --delimiter tab => 1.0000|2.0000
1 \t2' | qorvex describe - --delimiter space => 1.0000|2.0000
1  2' | qorvex describe - --delimiter ' ' => 1.0000|2.0000
1' | qorvex describe - --decimals 010 => 1.0000000000
)");
}

TEST(Matrix, PrintsResultsThatCanBeReadAgain) {
  // Every step of these is exact. Small enough to check by hand.
  ExpectOutputs("printf -- '@", R"(
0 2\n4 0' | qorvex matrix inverse - => 0,0.25|0.5,0
0 2\n-4 0' | qorvex matrix determinant - => 8
0 0\n1 0' | qorvex matrix determinant - => 0
a|b\n1|2\n2|4' | qorvex matrix rank - --header --delimiter '|' => 1
-4 0\n-2 0' | qorvex matrix echelon - => 1,0|0,0
1 0 0\n0 1 1' | qorvex matrix multiply - grain_yields.csv => 39|60
2 0 1' | qorvex matrix multiply grain_yields.csv - --decimals 1 | tail -n 1 => 52.0,0.0,26.0
-0 1.25\n2 1e3' | qorvex matrix transpose - --decimals 1 => 0.0,2.0|1.2,1000.0
)");
  const std::string numbers =
      "0.1,12345678901234567890,-0\n1.0000000000000000001,-1e-4940,3.1415926535897932385\n";
  ExpectOutput(
      "printf -- '" + numbers + "' | qorvex matrix transpose - | qorvex matrix transpose -",
      numbers);
}

// Faults of single cells are tested with the readers.
TEST(Program, RefusesBadInputWithStatusTwo) {
  ExpectRefusals("printf -- '@", R"(
1,2\n3,x\n' | qorvex describe - --column 2 => :2: column 2: "x" is not a number
1 1e4000\n2 1\n3 4\n4 5\n' | qorvex describe - => : column 2: the values are too large; their statistics are beyond the range of extended precision
1e-6' | qorvex matrix inverse - --tolerance 1e-5 => : The matrix has no inverse; elements up to 1e-05 count as zero, which --tolerance changes
1 2 3\n4 5 6' | qorvex matrix determinant - => : The matrix must be square: 2 x 3
1e3000 0\n0 1e3000' | qorvex matrix determinant - => : the determinant is beyond the range of extended precision
1e-4940' | qorvex matrix rank - --tolerance 0 => : the echelon form is beyond the range of extended precision
)",
                 "standard input");
  ExpectRefusals("qorvex @", R"(
describe . => .: Is a directory
matrix multiply grain_bundles.csv nosuch.csv => nosuch.csv: No such file or directory
describe matrix => matrix: No such file or directory
matrix multiply rank multiply => rank: No such file or directory
)");
}

TEST(Program, RefusesWrongUsageWithStatusTwo) {
  const std::pair<std::string, std::vector<std::string>> commands[] = {
      {"", {"", "--", "decsribe x", "describe", "matrix"}},
      {"describe - ",
       {"--decimals -1", "--decimals 256", "--decimals x", "--decimals 0x10", "--delimiter 5",
        "--delimiter ''", "--delimiter ab", "--nosuch", "--column 1 extra", "--column",
        "--header --no-header"}},
      {"matrix ", {"invert -", "inverse", "inverse - -", "multiply -", "multiply - -"}},
      {"dist ",
       {"", "gauss", "normal", "normal most", "normal inv", "normal inv --p .5 --upper-p .5",
        "normal less --x 1 --log --classic"}},
      {"random ", {"", "gauss", "uniform --seed 1 2"}},
      {"fit ", {"", "line", "line -", "line - --x 1", "line - --y 1", "cubic - --x 1 --y 2"}},
      {"matrix rank - ", {"--decimals 2", "--tolerance x", "--tolerance nan", "--tolerance=-1"}},
  };
  for (const auto& [command, endings] : commands) {
    for (const std::string& ending : endings) {
      const std::string output = Shell("echo 1 | qorvex " + command + ending + "; echo $?");
      EXPECT_TRUE(output.starts_with("qorvex: ") &&
                  output.ends_with("\nqorvex: --help describes the program and its commands\n2\n"))
          << command << ending << '\n'
          << output;
    }
  }
  ExpectUsageErrors("qorvex @", R"(
desc ok.csv => there is no command "desc"; the commands are describe, fit, matrix, dist, random
dist beta most --a 1 => dist beta: there is no command "most"; the commands are less, greater, between, inv, pdf, table
dist normal inv --p 0.5 1 => dist normal inv: unexpected "1"
fit --x 2 t.csv => fit: unexpected "--x", "2", "t.csv"
describe a.csv b.csv --nosuch => describe: unexpected "b.csv", "--nosuch"
describe -- a.csv b.csv => describe: unexpected "b.csv"
dist -- x y => dist: unexpected "x", "y"
dist normal less --x 1 -- y => dist normal less: unexpected "y"
)");
}

TEST(Program, PrintsVersionAndHelpAndReportsAFullDisk) {
  ExpectOutput("qorvex --version", "qorvex " QORVEX_VERSION "\n");
  ExpectOutputs("qorvex @", R"(
matrix --help | grep -c inverse => 1
describe --help | grep -o '^Exit status' => Exit status
)");
  const std::string full = "qorvex: standard output: No space left on device\nexit status 1\n";
  ExpectOutput("qorvex --help >/dev/full", full);
  ExpectOutput("qorvex describe michelson_1879.csv >/dev/full", full);
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
