#include <array>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <random>
#include <thread>

#include "qorvex/base/random.h"
#include "qorvex/base/text.h"
#include "qorvex/random/QorvexRandom.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/distributions/distributions.h"

using namespace qorvex;

// A standard engine as a source of uniform values with 64 random bits.
class OwnSource {
 public:
  explicit OwnSource(std::uint64_t seed) : engine_(seed) {}
  Extended operator()() { return std::ldexp(static_cast<Extended>(engine_()), -64); }

 private:
  std::mt19937_64 engine_;
};

// Counts the months with more than 60 mm of rain. A month has four storms on average. The rain of a
// storm is a gamma variate with shape 2 and scale 5 mm, and so is the sum of n storms, with shape 2n.
int WetMonths(int months, std::uint64_t seed) {
  OwnSource source(seed);
  int wet = 0;
  for (int i = 0; i < months; ++i) {
    const Extended storms = Random_Poisson(4, source);
    if (storms > 0 && 5 * Random_Gamma(2 * storms, source) > 60) ++wet;
  }
  return wet;
}

int main() {
  // The short forms draw from the library's generator. A seed makes the values reproducible.
  SetRandSeed(1879);
  for (int i = 0; i < 3; ++i) std::cout << Float2Str(Random_Normal()) << '\n';

  // Many variates at once.
  auto heights = TQorFloatVector::ForOverwrite(100'000);
  FillNormal(heights, 178, 7);
  std::cout << "Heights: " << Float2EStr(QorMean(heights), 2) << " +- "
            << Float2EStr(SampleStdDev(heights), 2) << " cm\n";

  // Four threads, each with its own source.
  constexpr int months = 250'000;
  std::array<int, 4> wet;
  {
    std::array<std::jthread, 4> threads;
    for (std::size_t i = 0; i < wet.size(); ++i)
      threads[i] = std::jthread([&wet, i] { wet[i] = WetMonths(months, 100 + i); });
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
