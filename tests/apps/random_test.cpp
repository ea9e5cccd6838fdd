// Compares the command random of the built program with the routines of the library.

#include "qorvex/base/random.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "apps/shell.h"
#include "qorvex/base/elementary/functions.h"
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
      {"log-normal --mean 1 --std-dev 0.5", [] { return Exp(Random_Normal(1, 0.5L)); }},
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
}

TEST(RandomCommand, TakesASeedFromTheSystemByDefault) {
  EXPECT_NE(Shell("qorvex random uniform"), Shell("qorvex random uniform"));
}

}  // namespace qorvex::apps
