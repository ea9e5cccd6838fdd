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

void ExpectRefusal(const std::string& command, const std::string& message) {
  ExpectOutput(command, "qorvex: " + message + "\nexit status 2\n");
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
  ExpectRefusal("qorvex describe nosuch.csv", "nosuch.csv: No such file or directory");
  ExpectRefusal("qorvex describe .", ".: Is a directory");
  ExpectRefusal(R"(printf '1,2\n3,x\n' | qorvex describe - --column 2)",
                "standard input:2: column 2: \"x\" is not a number");
  ExpectRefusal(R"(printf '1 1e4000\n2 1\n3 4\n4 5\n' | qorvex describe -)",
                "standard input: column 2: the values are too large; their statistics are beyond "
                "the range of extended precision");
}

TEST(Describe, ReadsDecimalsAsDecimals) {
  ExpectOutput("echo 1 | qorvex describe - --decimals 010 | grep Mean", "Mean:\t1.0000000000\n");
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

TEST(Matrix, PrintsResultsThatCanBeReadAgain) {
  // Every step of these is exact. Small enough to check by hand.
  for (const auto& [input, result] : {
           std::pair("0 2\\n4 0' | qorvex matrix inverse -", "0,0.25\n0.5,0\n"),
           std::pair("-2 0\\n0 4' | qorvex matrix inverse -", "-0.5,0\n0,0.25\n"),
           std::pair("2,4\\n1,4' | qorvex matrix inverse - | qorvex matrix inverse -",
                     "2,4\n1,4\n"),
           std::pair("1e-20' | qorvex matrix inverse - --tolerance 0", "1e+20\n"),
           std::pair("0 2\\n-4 0' | qorvex matrix determinant -", "8\n"),
           std::pair("0 0\\n1 0' | qorvex matrix determinant -", "0\n"),
           std::pair("a|b\\n1|2\\n2|4' | qorvex matrix rank - --header --delimiter '|'", "1\n"),
           std::pair("1 0\\n0 1e-9' | qorvex matrix rank -", "2\n"),
           std::pair("1 0\\n0 1e-9' | qorvex matrix rank - --tolerance 1e-6", "1\n"),
           std::pair("-4 0\\n-2 0' | qorvex matrix echelon -", "1,0\n0,0\n"),
           std::pair("1 0 0\\n0 1 1' | qorvex matrix multiply - grain_yields.csv", "39\n60\n"),
           std::pair("2 0 1' | qorvex matrix multiply grain_yields.csv - --decimals 1 | tail -n 1",
                     "52.0,0.0,26.0\n"),
           std::pair("-0 1.25\\n2 1e3' | qorvex matrix transpose - --decimals 1",
                     "0.0,2.0\n1.2,1000.0\n"),
       }) {
    ExpectOutput(std::string("printf -- '") + input, result);
  }
  const std::string numbers =
      "0.1,12345678901234567890,-0\n1.0000000000000000001,-1e-4940,3.1415926535897932385\n";
  ExpectOutput(
      "printf -- '" + numbers + "' | qorvex matrix transpose - | qorvex matrix transpose -",
      numbers);
}

TEST(Matrix, RefusesBadInputWithStatusTwo) {
  const std::string overflow = " is beyond the range of extended precision";
  for (const auto& [input, message] : {
           std::pair<std::string, std::string>(
               "1 2\\n2 4' | qorvex matrix inverse -",
               ": The matrix has no inverse; elements up to 1e-15 count as zero, which "
               "--tolerance changes"),
           {"1e-6' | qorvex matrix inverse - --tolerance 1e-5",
            ": The matrix has no inverse; elements up to 1e-05 count as zero, which "
            "--tolerance changes"},
           {"1 2 3\\n4 5 6' | qorvex matrix inverse -", ": The matrix must be square: 2 x 3"},
           {"1 2 3\\n4 5 6' | qorvex matrix determinant -", ": The matrix must be square: 2 x 3"},
           {"1e3000 0\\n0 1e3000' | qorvex matrix determinant -", ": the determinant" + overflow},
           // The reciprocal of the pivot overflows, which the rank alone would not show.
           {"1e-4940' | qorvex matrix rank - --tolerance 0", ": the echelon form" + overflow},
           {"1 2' | qorvex matrix multiply - grain_bundles.csv",
            ", grain_bundles.csv: The columns of the first matrix must be as many as the rows of "
            "the second: 1 x 2 times 3 x 3"},
           {"x,y\\n1,2\\n' | qorvex matrix transpose -",
            ":1: column 1: \"x\" is not a number; --header skips the first row"},
           {"1,2\\n1,2x\\n' | qorvex matrix transpose -", ":2: column 2: \"2x\" is not a number"},
       }) {
    ExpectRefusal("printf -- '" + input, "standard input" + message);
  }
  ExpectRefusal("qorvex matrix multiply grain_bundles.csv nosuch.csv",
                "nosuch.csv: No such file or directory");
}

// By hand, from the closed forms of special cases, or what is known of the standard normal.
TEST(Dist, AnswersForEveryDistribution) {
  for (const auto& [question, answer] : {
           std::pair("normal less --mean 1 --std-dev 2 --x 4.92 --decimals 10", "0.9750021049\n"),
           std::pair("log-normal inv --mean 1 --p 0.5 --decimals 12", "2.718281828459\n"),
           std::pair("exponential greater --mean 2 --x 6 --decimals 12", "0.049787068368\n"),
           std::pair("exponential less --mean 2 --x 1e-30 --decimals 40",
                     "0.0000000000000000000000000000005000000000\n"),
           std::pair("gamma less --shape 1 --scale 2 --x 6 --decimals 12", "0.950212931632\n"),
           std::pair("chi-square inv --df 2 --upper-p 1e-100 --decimals 10", "460.5170185988\n"),
           std::pair("student-t pdf --df 1 --x 1 --decimals 12", "0.159154943092\n"),
           std::pair("student-t less --df 2 --x -1e6 --decimals 25",
                     "0.0000000000004999999999993\n"),
           std::pair("f greater --df1 2 --df2 4 --x 1 --decimals 12", "0.444444444444\n"),
           std::pair("beta less --a 2 --b 1 --x 0.5 --decimals 12", "0.250000000000\n"),
           std::pair("beta inv --a 2 --b 1 --lower-end 1 --upper-end 5 --p 0.25 --decimals 6",
                     "3.000000\n"),
           std::pair("beta pdf --a 2 --b 3 --lower-end 1 --upper-end 5 --x 2 --decimals 12",
                     "0.421875000000\n"),
           std::pair("hypergeometric pdf --pop-size 10 --sample-size 3 --successes 4 --k 1 "
                     "--decimals 12",
                     "0.500000000000\n"),
           std::pair("poisson less --lambda 2 --k 1 --decimals 12", "0.135335283237\n"),
           std::pair("poisson inv --lambda 2 --upper-p 0.3", "3\n"),
           // By the asymptotic series -800 - ln(40 sqrt(2 pi)) + ln(1 - 1/1600 + ...).
           std::pair("normal greater --x 40 --log --decimals 8", "-804.60844201\n"),
       }) {
    ExpectOutput(std::string("qorvex dist ") + question, answer);
  }
}

TEST(Dist, CountsNeitherEndOfADiscreteInterval) {
  const std::string fair = "--success-probability 0.5 --trials 4 --decimals 4 ";
  for (const auto& [question, answer] : {
           std::pair("less --k 0", "0.0000\n"),
           std::pair("less --k 0 --log", "-inf\n"),
           std::pair("less --k 2", "0.3125\n"),
           std::pair("less --k 9", "1.0000\n"),
           std::pair("greater --k 2", "0.3125\n"),
           std::pair("greater --k 4", "0.0000\n"),
           std::pair("between --k1 0 --k2 4", "0.8750\n"),
           std::pair("between --k1 3 --k2 1", "0.3750\n"),
           std::pair("between --k1 0 --k2 2", "0.2500\n"),
           std::pair("between --k1 2 --k2 4", "0.2500\n"),
           std::pair("between --k1 2 --k2 3", "0.0000\n"),
           std::pair("between --k1 2 --k2 2", "0.0000\n"),
           std::pair("table --from 3 --to 5", "3,0.2500\n4,0.0625\n5,0.0000\n"),
       }) {
    ExpectOutput("qorvex dist binomial " + std::string(question) + ' ' + fair, answer);
  }
}

TEST(Dist, KeepsTheDigitsOfIntervalsInEitherTail) {
  // exp(-100) - exp(-101), and the same interval from below; then one around the median.
  ExpectOutput("qorvex dist exponential between --mean 1 --x1 101 --x2 100 --decimals 56",
               "0.00000000000000000000000000000000000000000002351536504847\n");
  for (const char* points : {"--x1 12 --x2 13", "--x1 -12 --x2 -13"}) {
    ExpectOutput(std::string("qorvex dist normal between --decimals 45 ") + points,
                 "0.000000000000000000000000000000001776475994913\n");
  }
  ExpectOutput("qorvex dist normal between --x1 -1 --x2 1 --decimals 12", "0.682689492137\n");
}

TEST(Dist, ComputesWithTheClassicRoutinesOnRequest) {
  for (const auto& [question, answer] : {
           // Twelve standard deviations out their series has ended too early.
           std::pair("normal less --x 12 --decimals 4", "0.5000\n"),
           std::pair("normal table --from -1 --to 1 --n 2 --decimals 4",
                     "-1.0000,0.2420\n0.0000,0.3989\n1.0000,0.2420\n"),
           std::pair("gamma less --shape 1 --scale 2 --x 6 --decimals 12", "0.950212931632\n"),
           std::pair("chi-square between --df 2 --x1 6 --x2 2 --decimals 12", "0.318092372804\n"),
           std::pair("f inv --df1 2 --df2 4 --p 0.75 --decimals 12", "2.000000000000\n"),
           std::pair("beta less --a 2 --b 1 --lower-end 1 --upper-end 5 --x 3 --decimals 12",
                     "0.250000000000\n"),
           std::pair("beta table --a 1 --b 1 --upper-end 2 --from 1 --to 3 --n 1 --decimals 2",
                     "1.00,0.50\n3.00,0.00\n"),
       }) {
    ExpectOutput(std::string("qorvex dist ") + question + " --prescribed", answer);
  }
  ExpectOutput("qorvex dist chi-square greater --df 2 --x 200 --prescribed", "0\n");
  ExpectRefusal("qorvex dist chi-square pdf --df 3 --x -1 --prescribed",
                "chi-square pdf: The value must not be negative; without --prescribed there is no "
                "such limit");
  const std::string beyond =
      ": the figure, or one on the way to it, is beyond the range of extended precision";
  ExpectRefusal("qorvex dist normal pdf --std-dev 1e3000 --x 1e3000 --prescribed",
                "normal pdf" + beyond + "; without --prescribed there is no such limit");
  ExpectRefusal("qorvex dist log-normal inv --mean 1e4 --std-dev 1e4 --p 0.9 --prescribed",
                "log-normal inv" + beyond);
  ExpectRefusal("qorvex dist hypergeometric pdf --pop-size 3 --sample-size 4 --successes 1 --k 1",
                "hypergeometric pdf: The hypergeometric distribution needs a population and a "
                "sample of at least one, and neither sample nor successes above the population");
}

TEST(Dist, NamesTheOptionThatIsWrong) {
  for (const auto& [question, message] : {
           std::pair("normal pdf --x 1,5", "--x: \"1,5\" is not a number"),
           std::pair("normal pdf --x inf", "--x: \"inf\" is not a finite number"),
           std::pair("normal pdf --x 1e5000", "--x: \"1e5000\" is too large a number"),
           std::pair("normal pdf", "--x is required"),
           std::pair("normal pdf --std-dev 0 --x 1", "--std-dev: \"0\" is not greater than 0"),
           std::pair("normal inv --p 1", "--p: \"1\" is not between 0 and 1"),
           std::pair("normal table --from 0 --to 1 --n -1",
                     "--n: \"-1\" is not a whole number from 0 to 9999999"),
           std::pair("binomial pdf --trials 4294967296 --success-probability 1 --k 1",
                     "--trials: \"4294967296\" is not a whole number from 0 to 4294967295"),
           std::pair("binomial pdf --trials 1 --success-probability 1.1 --k 1",
                     "--success-probability: \"1.1\" is not from 0 to 1"),
           std::pair(
               "f less --df1 1 --df2 2.5 --x 1 --prescribed",
               "--df2: 2.5 is not a whole number from 0 to 4294967295, as --prescribed needs"),
           std::pair("beta pdf --a 1 --b 1 --lower-end 1 --x 1",
                     "--upper-end must be greater than --lower-end"),
           std::pair("beta pdf --a 1 --b 1 --lower-end -1e4932 --upper-end 1e4932 --x 1",
                     "--upper-end less --lower-end is beyond the range of extended precision"),
           std::pair("student-t pdf --df 1e16 --x 1", "--df: \"1e16\" is not from 1e-17 to 1e15"),
           std::pair("beta pdf --a 1 --b 1e-18 --x 1", "--b: \"1e-18\" is not from 1e-17 to 1e15"),
           std::pair("poisson table --lambda 1 --from 3 --to 2",
                     "--to: counts ascend, so it must not be below --from"),
           std::pair("poisson table --lambda 1 --from 5 --to 10000005",
                     "--to: a table has at most 10000000 points"),
           std::pair("exponential inv --mean 1 --p 0.5 --prescribed",
                     "--prescribed: there is no such routine in QorvexStatistics"),
       }) {
    ExpectRefusal(
        std::string("qorvex dist ") + question,
        message + std::string("\nqorvex: --help tells what the program and its commands take"));
  }
}

// By hand: the parabola is exact, the line has deviations of 1, -2 and 1 thirds.
TEST(Fit, ReportsTheCurveAndWhatItLeaves) {
  const std::string input = R"(printf 'x,z,y\n0,a,1\n1,b,2\n2,c,5\n' | qorvex fit )";
  ExpectOutput(input + "line - --x x --y 3 --decimals 3",
               "Number of Values:\t3\nMean of X Values:\t1.000\nMean of Y Values:\t2.667\n"
               "Standard Deviation of X Values:\t1.000\nStandard Deviation of Y Values:\t2.082\n"
               "Covariance:\t2.000\nRegression Line:\t0.667 + 2.000 x\n"
               "Sum of Squares Error:\t0.667\nCoefficient of Correlation\t0.961\n"
               "Coefficient of Determination\t0.923\n");
  ExpectOutput(input + "quadratic - --x x --y y | tail -n 4",
               "Regression Parabola:\t1 + 0 x + 1 x^2\nSum of Squares Error:\t0\n"
               "Coefficient of Correlation\t0.9607689228305228009\n"
               "Coefficient of Determination\t1\n");
  ExpectOutput(R"(printf '1 5\n2 3\n3 1\n' | qorvex fit line - --x 1 --y 2 | grep Line)",
               "Regression Line:\t7 - 2 x\n");
  // Skipping an empty cell must not pair the values of different rows.
  ExpectOutput(R"(printf '1,2\n,9\n3,\n4,8\n' | qorvex fit line - --x 1 --y 2 --skip-empty |
                  grep -E 'Num|Line')",
               "qorvex: standard input: skipped 2 rows with an empty cell\n"
               "Number of Values:\t2\nRegression Line:\t0 + 2 x\n");
  ExpectOutput(R"(printf '1,0.1\n3,0.1\n' | qorvex fit line - --x 1 --y 2 | tail -n 2)",
               "Coefficient of Correlation\tNot available\n"
               "Coefficient of Determination\tNot available\n");
  ExpectOutput(
      R"(printf '1,2\n2,2\n3,2\n' | qorvex fit line - --x 1 --y 2 --json |
                  grep -v file | tr -d ' \n')",
      R"({"x":{"column":1,"name":null},"y":{"column":2,"name":null},"count":3,"skipped":0,)"
      R"("mean_x":2,"mean_y":2,"standard_deviation_x":1,"standard_deviation_y":0,)"
      R"("covariance":0,"coefficients":[2,0],"sum_of_squared_errors":0,)"
      R"("correlation":null,"determination":null})");
}

// By hand: the parabola through 1, 2, 5 and 7 at 0 to 3 is 0.85 + 1.35 x + 0.25 x^2, with squared
// errors of 0.45 of 22.75 about the mean.
TEST(Fit, LosesNoDigitsToWhatTheNumbersShareNorToTheirSize) {
  for (const auto& [x, y] : {
           std::pair("0 1 2 3", "1 2 5 7"),
           std::pair("5000 5001 5002 5003", "1 2 5 7"),
           std::pair("1e9 1000000001 1000000002 1000000003", "1000001 1000002 1000005 1000007"),
           std::pair("1e-4 2e-4 3e-4 4e-4", "1e-3000 2e-3000 5e-3000 7e-3000"),
           std::pair("0 1e4000 2e4000 3e4000", "1e500 2e500 5e500 7e500"),
       }) {
    const std::string fit = std::string("for i in 1 2 3 4; do printf '%s,%s\\n' `echo ") + x +
                            " | cut -d' ' -f$i` `echo " + y +
                            " | cut -d' ' -f$i`; done | qorvex fit ";
    const std::string ask = " - --x 1 --y 2 --decimals 16 | grep Coefficient";
    ExpectOutput(fit + "quadratic" + ask,
                 "Coefficient of Correlation\t0.9844951849708404\n"
                 "Coefficient of Determination\t0.9802197802197802\n");
    ExpectOutput(fit + "line" + ask,
                 "Coefficient of Correlation\t0.9844951849708404\n"
                 "Coefficient of Determination\t0.9692307692307692\n");
  }
  const std::string years = R"(printf '2000,1\n2001,2\n2002,5\n2003,7\n' | qorvex fit )";
  ExpectOutput(years + "quadratic - --x 1 --y 2 --decimals 8 | grep -E 'Parabola|Error'",
               "Regression Parabola:\t997300.85000000 - 998.65000000 x + 0.25000000 x^2\n"
               "Sum of Squares Error:\t0.45000000\n");
  // Rounding would leave a correlation above 1 here.
  ExpectOutput(R"(for i in 1 2 3 4 5 6 7; do echo 0.$i,0.$((i+1)); done |
                  qorvex fit line - --x 1 --y 2 | tail -n 2)",
               "Coefficient of Correlation\t1\nCoefficient of Determination\t1\n");
}

TEST(Fit, RefusesBadInputWithStatusTwo) {
  for (const auto& [input, message] : {
           std::pair("1,2\\n1,3' | qorvex fit line - --x 1 --y 2",
                     ": column 1: a line needs two different x"),
           // Ten times 0.1 would leave a spread of rounding errors.
           {"0.1,2\\n0.1,3\\n0.1,4\\n0.1,4\\n0.1,4\\n0.1,4' | qorvex fit line - --x 1 --y 2",
            ": column 1: a line needs two different x"},
           {"x,y\\n1,2\\n1,3\\n2,3' | qorvex fit quadratic - --x x --y y",
            ": column 1 (x): a parabola needs three different x"},
           {"0 1\\n1e-9 2\\n1 5' | qorvex fit quadratic - --x 1 --y 2",
            ": column 1: the x lie too close to only two places for a parabola"},
           {"1e4932 1\\n-1e4932 2' | qorvex fit line - --x 1 --y 2",
            ": the values are too large; their sums are beyond the range of extended precision"},
           {"1 1e4000\\n2 2\\n3 2' | qorvex fit line - --x 1 --y 2",
            ": the values are too large; their sums are beyond the range of extended precision"},
           {"x,y\\n1,2\\n2,' | qorvex fit line - --x x --y y",
            ":3: column 2 (y): the cell is empty; --skip-empty skips such rows"},
           {"x,y\\n1,2' | qorvex fit line - --x x --y 1", ": x and y are both column 1 (x)"},
           {"x,y\\n1,2' | qorvex fit line - --x x --y z",
            ": there is no column \"z\"; the columns are 1 (x), 2 (y)"},
       }) {
    ExpectRefusal(std::string("printf '") + input, std::string("standard input") + message);
  }
}

TEST(Program, TakesTheNamesOfCommandsForFiles) {
  for (const char* command : {"describe matrix", "matrix rank matrix", "matrix inverse describe",
                              "matrix multiply rank multiply"}) {
    const std::string output = Shell(std::string("qorvex ") + command);
    EXPECT_TRUE(output.ends_with(": No such file or directory\n")) << output;
  }
}

TEST(Program, RefusesWrongUsageWithStatusTwo) {
  const std::pair<std::string, std::vector<std::string>> commands[] = {
      {"", {"", "decsribe x", "describe", "matrix"}},
      {"describe - ",
       {"--decimals -1", "--decimals 256", "--decimals x", "--decimals 0x10", "--delimiter 5",
        "--delimiter ''", "--delimiter ab", "--nosuch", "--column 1 extra", "--column"}},
      {"matrix ", {"invert -", "inverse", "inverse - -", "multiply -", "multiply - -"}},
      {"dist ",
       {"", "gauss", "normal", "normal most", "normal inv", "normal inv --p .5 --upper-p .5",
        "normal less --x 1 --log --prescribed"}},
      {"fit ", {"", "line", "line -", "line - --x 1", "line - --y 1", "cubic - --x 1 --y 2"}},
      {"matrix rank - ", {"--decimals 2", "--tolerance x", "--tolerance nan", "--tolerance=-1"}},
  };
  for (const auto& [command, endings] : commands) {
    for (const std::string& ending : endings) {
      const std::string output = Shell("echo 1 | qorvex " + command + ending + "; echo $?");
      EXPECT_TRUE(
          output.starts_with("qorvex: ") &&
          output.ends_with("\nqorvex: --help tells what the program and its commands take\n2\n"))
          << command << ending << '\n'
          << output;
    }
  }
}

TEST(Program, TellsItsVersionAndHelpAndWhetherTheyCouldBeWritten) {
  ExpectOutput("qorvex --version", "qorvex " QORVEX_VERSION "\n");
  ExpectOutput("qorvex describe --help >/dev/null", "");
  ExpectOutput("qorvex matrix --help | grep -c inverse", "1\n");
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
