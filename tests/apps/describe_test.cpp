// Runs the built program.

#include "qorvex/base/version.h"

#include "apps/shell.h"

#include <gtest/gtest.h>
#include <string>

namespace qorvex::cli {
namespace {

void ExpectSuccess(const std::string& command, const std::string& out,
                   const std::string& err = "") {
  SCOPED_TRACE(command);
  const ShellResult result = Shell(command);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, out);
  EXPECT_EQ(result.err, err);
}

// The whole result is withheld when anything is wrong.
void ExpectFailure(const std::string& command, int status, const std::string& err) {
  SCOPED_TRACE(command);
  const ShellResult result = Shell(command);
  EXPECT_EQ(result.status, status);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, err);
}

// By hand: sum 40, mean 5, squares about the mean 32; the third and fourth moments about it are
// 42/8 and 356/8; the quartiles are the means of the second and third and of the sixth and seventh
// value.
TEST(Describe, ReportsAPopulation) {
  ExpectSuccess(
      "printf '2\\n4\\n4\\n4\\n5\\n5\\n7\\n9\\n' | qorvex describe - --population --decimals 3",
      "Column 1\n"
      "Number of Values:\t8\n"
      "Maximum:\t9.000\n"
      "Minimum:\t2.000\n"
      "Range:\t7.000\n"
      "Sum:\t40.000\n"
      "Sum of Squares:\t232.000\n"
      "Mean:\t5.000\n"
      "Mode:\t4.000\n"
      "Median:\t4.500\n"
      "Variance:\t4.000\n"
      "Standard Deviation:\t2.000\n"
      "Kurtosis:\t-0.219\n"
      "Skew:\t0.656\n"
      "First Quartile:\t4.000\n"
      "Third Quartile:\t6.000\n"
      "Inter-Quartile Range:\t2.000\n");
}

TEST(Describe, HeadsEachColumnAndSaysWhatWasSkipped) {
  const ShellResult result =
      Shell("printf 'a;b\\n1;\\n2;x\\n;y\\n4;' | qorvex describe - --column 1 --skip-empty");
  EXPECT_EQ(result.err, "qorvex: standard input: column 1 (a): skipped 1 empty cell\n");
  const ShellResult two =
      Shell("printf 'a b\\n1 2\\n' | qorvex describe - --column b --column a --decimals 0");
  EXPECT_EQ(two.out.substr(0, two.out.find("Maximum")), "Column 2: b\nNumber of Values:\t1\n");
  EXPECT_NE(two.out.find("\n\nColumn 1: a\nNumber of Values:\t1\n"), std::string::npos);
}

TEST(Describe, WritesJsonWithNullForFiguresThatDoNotExist) {
  ExpectSuccess("printf '\"speed\\n\\\\\"\\n1\\n3\\n' | qorvex describe - --json",
                R"({
  "file": "-",
  "population": false,
  "columns": [
    {
      "column": 1,
      "name": "speed\n\\",
      "count": 2,
      "skipped": 0,
      "sum": 4,
      "sum_of_squares": 10,
      "mean": 2,
      "variance": 2,
      "standard_deviation": 1.4142135623730950488,
      "skewness": null,
      "excess_kurtosis": null,
      "minimum": 1,
      "first_quartile": 1,
      "median": 2,
      "third_quartile": 3,
      "maximum": 3,
      "range": 2,
      "interquartile_range": 2,
      "mode": null
    }
  ]
}
)");
  const auto figures = [](const std::string& numbers, const std::string& options) {
    return Shell("for i in " + numbers + "; do echo $i; done | qorvex describe - --json " +
                 options + " | grep -E 'variance|deviation|skew|kurt|mode' | tr -d ' \\n'")
        .out;
  };
  EXPECT_EQ(figures("7", ""),
            "\"variance\":null,\"standard_deviation\":null,\"skewness\":null,\"excess_kurtosis\":"
            "null,\"mode\":7");
  EXPECT_EQ(figures("7", "--population"),
            "\"variance\":0,\"standard_deviation\":0,\"skewness\":null,\"excess_kurtosis\":null,"
            "\"mode\":7");
  EXPECT_EQ(figures("1 2 3", ""),
            "\"variance\":1,\"standard_deviation\":1,\"skewness\":0,\"excess_kurtosis\":null,"
            "\"mode\":null");
  EXPECT_EQ(figures("7 7 7 7", ""),
            "\"variance\":0,\"standard_deviation\":0,\"skewness\":null,\"excess_kurtosis\":null,"
            "\"mode\":7");
}

// The integers are exact in 64 bits of mantissa and not in 53.
TEST(Describe, KeepsEightyBitsFromTextToText) {
  const ShellResult result =
      Shell("printf '9223372036854775807\\n9223372036854775805\\n' | qorvex describe - --json");
  EXPECT_NE(result.out.find("\"mean\": 9223372036854775806,"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\"variance\": 2,"), std::string::npos) << result.out;
}

TEST(Describe, RefusesBadInputWithStatusTwo) {
  const auto bad = [](const std::string& command, const std::string& message) {
    ExpectFailure(command, 2, "qorvex: " + message + "\n");
  };
  bad("qorvex describe nosuch.csv", "nosuch.csv: No such file or directory");
  bad("qorvex describe .", ".: Is a directory");
  bad("qorvex describe - </dev/null", "standard input: there is nothing to read");
  bad("qorvex describe michelson_1879.csv --column speed",
      "michelson_1879.csv: there is no column \"speed\"; the columns are 1 (series), 2 (run), 3 "
      "(speed_km_s)");
  bad("printf '1,2\\n3,x\\n' | qorvex describe -",
      "standard input:2: column 2: \"x\" is not a number; --column chooses the columns to read");
  bad("printf '1,2\\n3,x\\n' | qorvex describe - --column 2",
      "standard input:2: column 2: \"x\" is not a number");
  bad("printf '1,2\\n3,\\n' | qorvex describe - --column 2",
      "standard input:2: column 2: the cell is empty; --skip-empty skips empty cells");
  bad("printf 'x\\n\\n\"\"\\n' | qorvex describe - --skip-empty",
      "standard input: column 1 (x) has no values");
  bad("printf '1,2\\n3\\n' | qorvex describe -",
      "standard input:2: the row has 1 cell where line 1 has 2");
  bad("printf '1\\n1e9999\\n' | qorvex describe -",
      "standard input:2: column 1: \"1e9999\" is beyond the range of extended precision");
  bad("printf '1 1e4000\\n2 1\\n3 4\\n4 5\\n' | qorvex describe -",
      "standard input: column 2: the values are too large; their statistics are beyond the range "
      "of extended "
      "precision");
}

TEST(Describe, RefusesWrongUsageWithStatusTwo) {
  for (const char* arguments :
       {"", "decsribe x", "describe", "describe - --decimals -1", "describe - --decimals 256",
        "describe - --decimals x", "describe - --delimiter 5", "describe - --delimiter ''",
        "describe - --delimiter ab", "describe - --nosuch", "describe - extra",
        "describe - --column"}) {
    SCOPED_TRACE(arguments);
    const ShellResult result = Shell("qorvex " + std::string(arguments) + " </dev/null");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.starts_with("qorvex: ")) << result.err;
  }
}

TEST(Describe, TakesDelimitersByCharacterAndByWord) {
  const auto maxima = [](const std::string& arguments) {
    return Shell("printf '" + arguments + " --json | grep maximum | tr -d ' \\n'").out;
  };
  const std::string one_and_two = "\"maximum\":1,\"maximum\":2,";
  for (const char* arguments : {"1|2\\n' | qorvex describe - --delimiter '|'",
                                "1,2\\n' | qorvex describe - --delimiter comma",
                                "1;2\\n' | qorvex describe - --delimiter=semicolon",
                                "1\\t2\\n' | qorvex describe - --delimiter tab",
                                "1 \\t2\\n' | qorvex describe - --delimiter space",
                                "1  2\\n' | qorvex describe - --delimiter ' '"}) {
    EXPECT_EQ(maxima(arguments), one_and_two) << arguments;
  }
}

TEST(Program, TellsItsVersionAndHelp) {
  ExpectSuccess("qorvex --version", "qorvex " QORVEX_VERSION "\n");
  const ShellResult help = Shell("qorvex describe --help");
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("--skip-empty"), std::string::npos);
}

TEST(Program, FailsWithStatusOneWhenTheResultCannotBeWritten) {
  const std::string full = "qorvex: standard output: No space left on device\n";
  ExpectFailure("qorvex describe michelson_1879.csv >/dev/full", 1, full);
  ExpectFailure("qorvex --help >/dev/full", 1, full);
}

}  // namespace
}  // namespace qorvex::cli
