#include <array>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <random>
#include <thread>

#include "qorvex/base/text.h"
#include "qorvex/random/QorvexRandom.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/distributions/distributions.h"

using namespace qorvex;

// Counts the months with more than 60 mm of rain. A month has four storms on average. The rain of a
// storm is a gamma variate with shape 2 and scale 5 mm; that of n storms together has shape 2n.
int WetMonths(int months, RandomStream stream) {
  const PoissonSampler storms_in_a_month(4);
  int wet = 0;
  for (int i = 0; i < months; ++i) {
    const Extended storms = storms_in_a_month(stream);
    if (storms > 0 && 5 * Random_Gamma(2 * storms, stream) > 60) ++wet;
  }
  return wet;
}

int main() {
  // A stream of your own, from a seed, which makes the values reproducible. Generators of 64 bits
  // of the standard library serve as well.
  RandomStream stream(1879);
  std::mt19937_64 engine(1879);
  std::cout << Float2Str(Random_Normal(stream)) << ' ' << Float2Str(Random_Normal(engine)) << '\n';

  // The short forms draw from the one generator of the program, which is also a std::mt19937_64:
  // the same seed gives the same value.
  SetRandSeed(1879);
  std::cout << Float2Str(Random_Normal()) << '\n';

  // Many variates at once.
  auto heights = TQorFloatVector::ForOverwrite(100'000);
  FillNormal(heights, 178, 7, stream);
  std::cout << "Heights: " << Float2EStr(QorMean(heights), 2) << " +- "
            << Float2EStr(SampleStdDev(heights), 2) << " cm\n";

  // Four threads, each with a substream of its own.
  constexpr int months = 250'000;
  const RandomStream root(2026);
  std::array<int, 4> wet;
  {
    std::array<std::jthread, 4> threads;
    for (std::size_t i = 0; i < wet.size(); ++i)
      threads[i] = std::jthread([&, i] { wet[i] = WetMonths(months, root.Substream(i)); });
  }
  const Extended share = (wet[0] + wet[1] + wet[2] + wet[3]) / (4.0L * months);
  const Extended error = std::sqrt(share * (1 - share) / (4.0L * months));

  const PoissonDistribution storms(4);
  Extended exact = 0;
  for (std::uint32_t n = 1; n < 60; ++n)
    exact += storms.Pmf(n) * Upper(GammaDistribution(2 * n, 5), 60);
  std::cout << "More than 60 mm: " << Float2EStr(share, 4) << " +- " << Float2EStr(error, 4)
            << ", exactly " << Float2EStr(exact, 6) << '\n';
}
