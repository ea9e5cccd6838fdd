// Runs the commands dist and fit of the built program.

#include <gtest/gtest.h>
#include <string>

#include "apps/shell.h"

namespace qorvex::apps {

const std::string kDist = "qorvex dist @";

// By hand, from the closed forms of special cases, or well-known values of the standard normal.
TEST(Dist, AnswersForEveryDistribution) {
  ExpectOutputs(kDist, R"(
normal less --mean 1 --std-dev 2 --x 4.92 --decimals 10 => 0.9750021049
log-normal inv --mean 1 --p 0.5 --decimals 12 => 2.718281828459
exponential greater --mean 2 --x 6 --decimals 12 => 0.049787068368
gamma less --shape 1 --scale 2 --x 6 --decimals 12 => 0.950212931632
chi-square inv --df 2 --upper-p 1e-100 --decimals 10 => 460.5170185988
student-t pdf --df 1 --x 1 --decimals 12 => 0.159154943092
f greater --df1 2 --df2 4 --x 1 --decimals 12 => 0.444444444444
beta inv --a 2 --b 1 --lower-end 1 --upper-end 5 --p 0.25 --decimals 6 => 3.000000
beta pdf --a 2 --b 3 --lower-end 1 --upper-end 5 --x 2 --decimals 12 => 0.421875000000
hypergeometric pdf --pop-size 10 --sample-size 3 --successes 4 --k 1 --decimals 12 => 0.500000000000
poisson inv --lambda 2 --upper-p 0.3 => 3
uniform less --lower-end 1 --upper-end 5 --x 2 => 0.25
weibull less --shape 2 --scale 3 --x 3 --decimals 12 => 0.632120558829
gumbel less --location 1 --scale 2 --x 3 --decimals 12 => 0.692200627555
logistic less --location 1 --scale 2 --x 3 --decimals 12 => 0.731058578630
cauchy less --location 1 --scale 2 --x 3 => 0.75
von-mises pdf --concentration 1 --x 0 --decimals 12 => 0.341710488623
generalised-inverse-gaussian pdf --h 2 --b 0.5 --scale 3 --x 6 --decimals 12 => 0.080656908173
geometric pdf --success-probability 0.25 --k 2 => 0.140625
negative-binomial pdf --success-probability 0.25 --failures 2 --k 1 => 0.28125
)");
}

TEST(Dist, ExcludesBothEndsOfADiscreteInterval) {
  ExpectOutputs("qorvex dist binomial @ --success-probability 0.5 --trials 4 --decimals 4", R"(
less --k 0 => 0.0000
less --k 0 --log => -inf
less --k 2 => 0.3125
greater --k 2 => 0.3125
greater --k 4 => 0.0000
between --k1 0 --k2 4 => 0.8750
between --k1 3 --k2 1 => 0.3750
between --k1 2 --k2 3 => 0.0000
between --k1 2 --k2 2 => 0.0000
table --from 3 --to 5 => 3,0.2500|4,0.0625|5,0.0000
)");
}

TEST(Dist, KeepsTheDigitsOfIntervalsInEitherTail) {
  // The same interval in both tails, and one around the median.
  ExpectOutputs(kDist, R"(
normal between --decimals 45 --x1 12 --x2 13 => 0.000000000000000000000000000000001776475994913
normal between --decimals 45 --x1 -12 --x2 -13 => 0.000000000000000000000000000000001776475994913
normal between --x1 -1 --x2 1 --decimals 12 => 0.682689492137
)");
}

TEST(Dist, ComputesWithTheClassicRoutinesOnRequest) {
  ExpectOutputs(kDist, R"(
normal table --classic --from -1 --to 1 --n 2 --decimals 4 => -1.0000,0.2420|0.0000,0.3989|1.0000,0.2420
gamma less --classic --shape 1 --scale 2 --x 6 --decimals 12 => 0.950212931632
chi-square between --classic --df 2 --x1 6 --x2 2 --decimals 12 => 0.318092372804
chi-square greater --classic --df 2 --x 200 => 0
f inv --classic --df1 2 --df2 4 --p 0.75 --decimals 12 => 2.000000000000
beta less --classic --a 2 --b 1 --lower-end 1 --upper-end 5 --x 3 --decimals 12 => 0.250000000000
beta table --classic --a 1 --b 1 --upper-end 2 --from 1 --to 3 --n 1 --decimals 2 => 1.00,0.50|3.00,0.00
)");
  // The sums of the classic routines are above 1 here.
  ExpectOutputs("qorvex dist binomial @ --success-probability 0.15 --trials 24 --classic", R"(
greater --k 23 => 0
less --k 24 => 1
)");
  ExpectRefusals(kDist, R"(
chi-square pdf --df 3 --x -1 --classic => chi-square pdf: The value must not be negative; without --classic there is no such limit
hypergeometric pdf --pop-size 3 --sample-size 4 --successes 1 --k 1 => hypergeometric pdf: The hypergeometric distribution needs a population and a sample of at least one, and neither sample nor successes above the population
log-normal inv --mean 1e4 --std-dev 1e4 --p 0.9 --classic => log-normal inv: the result or an intermediate result is beyond the range of extended precision
)");
}

TEST(Dist, PrintsInfinitiesOnlyAtTheEndsOfTheSupport) {
  ExpectRefusals(kDist, R"(
log-normal greater --std-dev 1e-3000 --x 2 --log => log-normal greater: the result or an intermediate result is beyond the range of extended precision
exponential greater --mean 1e-3000 --x 1e2000 --log => exponential greater: the result or an intermediate result is beyond the range of extended precision
gamma pdf --shape 0.5 --scale 1e-4931 --x 1e-4940 => gamma pdf: the result or an intermediate result is beyond the range of extended precision
gamma table --shape 0.5 --scale 1e-4931 --from 0 --to 1e-4940 --n 1 => gamma table: the result or an intermediate result is beyond the range of extended precision
)");
  ExpectOutputs(kDist, R"(
beta greater --a 2 --b 2 --upper-end 3 --x 4 --log => -inf
poisson less --lambda 2 --k 0 --log => -inf
beta pdf --a 0.5 --b 2 --lower-end 1 --upper-end 3 --x 1 => inf
beta pdf --a 2 --b 0.5 --lower-end -3 --upper-end 0.2 --x 0.2 => inf
chi-square table --df 1 --from 0 --to 2 --n 1 --decimals 2 => 0.00,inf|2.00,0.10
)");
}

TEST(Dist, NamesTheOptionThatIsWrong) {
  ExpectUsageErrors(kDist, R"(
normal pdf --x 1,5 => --x: "1,5" is not a number
normal pdf --x inf => --x: "inf" is not a finite number
normal pdf --x 1e5000 => --x: "1e5000" is too large a number
normal pdf => --x is required
poisson less --lambda 1e-4940 --k 1 => --lambda: "1e-4940" is below 3.362103143112093506e-4932, the smallest number with all digits
normal inv --p 1 => --p: "1" is not between 0 and 1
normal table --from 0 --to 1 --n -1 => --n: "-1" is not a whole number from 0 to 9999999
binomial pdf --trials 4294967296 --success-probability 1 --k 1 => --trials: "4294967296" is not a whole number from 0 to 4294967295
binomial pdf --trials 1 --success-probability 1.1 --k 1 => --success-probability: "1.1" is not from 0 to 1
beta pdf --a 1 --b 1 --lower-end 1 --x 1 => --upper-end must be greater than --lower-end
beta pdf --a 1 --b 1 --lower-end -1e4932 --upper-end 1e4932 --x 1 => --upper-end less --lower-end is beyond the range of extended precision
beta pdf --a 1 --b 1e-18 --x 1 => --b: "1e-18" is not from 1e-17 to 1e15
poisson table --lambda 1 --from 3 --to 2 => --to: counts ascend, so it must not be below --from
poisson table --lambda 1 --from 5 --to 10000005 => --to: a table has at most 10000000 points
exponential inv --mean 1 --p 0.5 --classic => --classic: there is no such routine in QorvexStatistics
)");
}

TEST(Fit, ReportsTheCurveAndItsErrors) {
  // By hand.
  ExpectOutput(R"(printf 'x,z,y\n0,a,1\n1,b,2\n2,c,5\n' | qorvex fit quadratic - --x x --y 3 |
                  tail -n 4)",
               "Regression Parabola:\t1 + 0 x + 1 x^2\nSum of Squares Error:\t0\n"
               "Coefficient of Correlation\t0.9607689228305228009\n"
               "Coefficient of Determination\t1\n");
  ExpectOutput(R"(printf '9,9\n1,5\n2,3\n3,1\n' | qorvex fit line - --x 1 --y 2 --header |
                  grep Line)",
               "Regression Line:\t7 - 2 x\n");
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
// errors of 0.45 of 22.75 about the mean. Offset and magnitude change neither coefficient.
TEST(Fit, KeepsItsDigitsForAnyOffsetAndMagnitude) {
  for (const char* pairs : {"0,1 1,2 2,5 3,7", "5000,1 5001,2 5002,5 5003,7",
                            "1e9,1000001 1000000001,1000002 1000000002,1000005 1000000003,1000007",
                            "1e-4,1e-3000 2e-4,2e-3000 3e-4,5e-3000 4e-4,7e-3000",
                            "0,1e500 1e4000,2e500 2e4000,5e500 3e4000,7e500"}) {
    const std::string fit = std::string("printf '%s\\n' ") + pairs + " | qorvex fit ";
    const std::string ask = " - --x 1 --y 2 --decimals 16 | grep Coefficient";
    const std::string correlation = "Coefficient of Correlation\t0.9844951849708404\n";
    const std::string determination = "Coefficient of Determination\t0.";
    ExpectOutput(fit + "quadratic" + ask, correlation + determination + "9802197802197802\n");
    ExpectOutput(fit + "line" + ask, correlation + determination + "9692307692307692\n");
  }
  // Rounding errors would push the correlation above 1.
  ExpectOutput(R"(for i in 1 2 3 4 5 6 7; do echo 0.$i,0.$((i+1)); done |
                  qorvex fit line - --x 1 --y 2 | tail -n 2)",
               "Coefficient of Correlation\t1\nCoefficient of Determination\t1\n");
}

TEST(Fit, RefusesBadInputWithStatusTwo) {
  // Ten times 0.1 would leave a spread of rounding errors.
  ExpectRefusals("printf '@", R"(
0.1,2\n0.1,3\n0.1,4\n0.1,4\n0.1,4\n0.1,4' | qorvex fit line - --x 1 --y 2 => : column 1: a line needs two different x
x,y\n1,2\n1,3\n2,3' | qorvex fit quadratic - --x x --y y => : column 1 (x): a parabola needs three different x
0 1\n1e-9 2\n1 5' | qorvex fit quadratic - --x 1 --y 2 => : column 1: the x lie too close to only two places for a parabola
1e4932 1\n-1e4932 2' | qorvex fit line - --x 1 --y 2 => : the values are too large; their sums are beyond the range of extended precision
1 1e4000\n2 2\n3 2' | qorvex fit line - --x 1 --y 2 => : the values are too large; their sums are beyond the range of extended precision
x,y\n1,2\n2,' | qorvex fit line - --x x --y y => :3: column 2 (y): the cell is empty; --skip-empty skips such rows
x,y\n1,2' | qorvex fit line - --x x --y z => : there is no column "z"; the columns are 1 (x), 2 (y)
x,y\n1,2' | qorvex fit line - --x x --y 1 => : x and y are both column 1 (x)
)",
                 "standard input");
}

}  // namespace qorvex::apps
