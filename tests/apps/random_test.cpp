// Runs the command random of the built program.

#include "qorvex/base/random.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "apps/shell.h"
#include "qorvex/base/text.h"
#include "qorvex/random/QorvexRandom.h"

namespace qorvex::apps {

// All parameters are different, so that mixing them up is detected.
TEST(RandomCommand, PrintsTheVariatesOfTheLibraryForASeed) {
  const std::pair<const char*, std::function<Extended()>> variates[] = {
      {"uniform", [] { return Random(); }},
      {"normal", [] { return Random_Normal(); }},
      {"normal --mean -2 --std-dev 3", [] { return Random_Normal(-2, 3); }},
      {"exponential --mean 3", [] { return 3 * Random_Exponential(); }},
      {"gamma --shape 2.5", [] { return Random_Gamma(2.5L); }},
      {"gamma --shape 0.3 --scale 4", [] { return 4 * Random_Gamma(0.3L); }},
      {"chi-square --df 5", [] { return Random_ChiSq(5); }},
      {"weibull --shape -1.5 --scale 2", [] { return 2 * Random_Weibull(-1.5L); }},
      {"beta --a 0.5 --b 3", [] { return Random_Beta(0.5L, 3); }},
      {"beta --a 2 --b 3 --lower-end -1 --upper-end 4", [] { return -1 + 5 * Random_Beta(2, 3); }},
      {"student-t --df 3", [] { return Random_T(3); }},
      {"student-t --df 1", [] { return Random_Cauchy(); }},
      {"student-t --df 1 --classic", [] { return Random_T(1); }},
      {"cauchy --location 1 --scale 2", [] { return 1 + 2 * Random_Cauchy(); }},
      {"log-normal --mean 1 --std-dev 0.5", [] { return std::exp(Random_Normal(1, 0.5L)); }},
      {"inverse-gaussian --h 2 --b 0.5", [] { return Random_Inv_Gauss(2, 0.5L); }},
      {"von-mises --concentration 9.9", [] { return Random_von_Mises(9.9L); }},
      {"binomial --success-probability 0.3 --trials 200",
       [] { return Random_Binomial2(200, 0.3L); }},
      {"binomial --success-probability 0.3 --trials 200 --method inversion",
       [] { return Random_Binomial1(200, 0.3L); }},
      {"negative-binomial --success-probability 0.4 --failures 2.5",
       [] { return Random_Neg_Binomial(2.5L, 0.4L); }},
      {"poisson --lambda 12.5", [] { return Random_Poisson(12.5L); }},
      {"poisson --lambda 9.5", [] { return Random_Poisson(9.5L); }},
      {"poisson --lambda 2 --classic", [] { return Random_Poisson(2); }},
  };
  constexpr std::uint64_t seed = 18446744073709551615U;
  for (const auto& [arguments, draw] : variates) {
    SetRandSeed(seed);
    std::string lines;
    for (int i = 0; i < 20; ++i) lines += Float2Str(draw()) + '\n';
    ExpectOutput(std::string("qorvex random ") + arguments + " --count 20 --seed " + Int2EStr(seed),
                 lines);
  }
  // The page about the command line has an example with a seed.
  ExpectOutput("qorvex random multivariate-normal --mean 8 --covariance 1e-9 --decimals 2",
               "8.00\n");
}

TEST(RandomCommand, TakesASeedFromTheSystemByDefault) {
  EXPECT_NE(Shell("qorvex random uniform"), Shell("qorvex random uniform"));
}

TEST(RandomCommand, DescribesItsLimits) {
  ExpectOutput("qorvex random von-mises --help | sed -n '/^Limits/,/^$/p'",
               "Limits:\n  --concentration is at least 0 and, with --classic, below 10.\n\n");
  ExpectOutput("qorvex random poisson --help | grep -o 'with --classic.*'",
               "with --classic and --lambda below 10, no variate exceeds 35.\n");
  ExpectOutput("qorvex random normal --help | grep -c Limits", "0\nexit status 1\n");
}

TEST(RandomCommand, PrintsAsItDraws) {
  ExpectOutput("qorvex random uniform --count 1e19 | head -n 4000 | wc -l", "4000\n");
  ExpectOutput("qorvex random uniform --count 1e19 >/dev/full",
               "qorvex: standard output: No space left on device\nexit status 1\n");
  ExpectOutput("qorvex random uniform --count 0", "");
}

TEST(RandomCommand, RefusesWhatTheRoutineRefuses) {
  ExpectRefusals("qorvex random @ --seed 1", R"(
chi-square --df 0 => chi-square: The shape parameter is out of range: --df is at least 1
student-t --df 1e-6 => student-t: the result or an intermediate result is beyond the range of extended precision
von-mises --concentration=-1 => von-mises: The value is out of range: --concentration is at least 0
log-normal --mean 1e5 => log-normal: the result or an intermediate result is beyond the range of extended precision
gamma --shape 2 --scale 1e4932 => gamma: the result or an intermediate result is beyond the range of extended precision
)");
  ExpectUsageErrors("qorvex random @", R"(
gamma => --shape is required
gamma --shape 0 => --shape: "0" is not greater than 0
student-t --df 0 => --df: "0" is not from 1e-17 to 1e15
student-t --df 2.5 --classic => --df: 2.5 is not a whole number from 0 to 2147483647, as --classic needs
uniform --seed=-1 => --seed: "-1" is not a whole number from 0 to 18446744073709551615
multivariate-normal --mean 1,,2 --covariance 1 => --mean: "" is not a number
multivariate-normal --mean 1,2 --covariance 1,2 => --covariance: the upper triangle for 2 means has 3 numbers, not 2
beta --a 1 --b 1 --lower-end 1 => --upper-end must be greater than --lower-end
binomial --success-probability 1 --trials 3e9 --method inversion => --trials: 3000000000 is not a whole number from 0 to 2147483647, as --method inversion needs
)");
  ExpectUsageError("qorvex random binomial --success-probability 1 --trials 1 --method both",
                   "--method: \"both\" is not one of btpe|inversion");
}

}  // namespace qorvex::apps
