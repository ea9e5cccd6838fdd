// What draws cannot show: formulas that decide so few variates, or so nearly like others, that a
// wrong digit does not come out among a million.

#include <boost/math/quadrature/gauss.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <random>

#include "qorvex/random/QorvexRandom.h"
#include "qorvex/random/detail/binomial_ratios.h"
#include "qorvex/random/detail/poisson_densities.h"
#include "qorvex/random/detail/power_of_complement.h"
#include "qorvex/stats/full_precision.h"
#include "support/test.h"

namespace qorvex {

namespace {

using Real = boost::multiprecision::number<boost::multiprecision::cpp_bin_float<60>>;

Real LogFactorial(const Real& n) {
  return boost::math::lgamma(n + 1);
}

TEST(InnerFormulas, StirlingCorrection) {
  // Its series ends in front of -691/360360 z^-11.
  for (const Extended z : {10.0L, 12.5L, 31.0L, 100.0L, 1e3L, 1e6L, 1e18L}) {
    const Real x = z;
    const Real two_pi = 2 * boost::math::constants::pi<Real>();
    const Real exact = LogFactorial(x - 1) - (x - 0.5) * log(x) + x - log(two_pi) / 2;
    const Real error = detail::StirlingCorrection(z) - exact;
    EXPECT_LE(static_cast<Extended>(abs(error)),
              691.0L / 360360 / std::pow(z, 11.0L) + 1e-19L * detail::StirlingCorrection(z))
        << z;
  }
}

struct Trials {
  Extended n;
  Extended p;
};

// Calls check(ratios, y, exact logarithm of the quotient) on both sides of the mode, up to ten
// standard deviations off.
template <class Check>
void ForRatios(Check check) {
  for (const auto& [n, p] : {Trials{60, 0.5L},
                             {150, 0.25L},
                             {1000, 0.1L},
                             {1e5L, 0.5L},
                             {2e9L, 0.3L},
                             {0x1p62L, 0.5L},
                             {0x1p62L, 1e-17L}}) {
    const Extended mode = std::floor(n * p + p);
    const detail::BinomialRatios ratios{n, p, 1 - p, mode};
    const Real exact_n = n;
    const Real log_odds = log(Real(p) / (1 - Real(p)));
    const auto log_probability = [&](Extended y) -> Real {
      return y * log_odds - LogFactorial(y) - LogFactorial(exact_n - y);
    };
    const Extended deviation = std::sqrt(n * p * (1 - p));
    for (const Extended distance : {-10.0L, -4.0L, -1.0L, -0.1L, 0.1L, 1.0L, 4.0L, 10.0L}) {
      const Extended y = std::floor(mode + distance * deviation);
      // Where Stirling's formula serves.
      if (std::fabs(y - mode) >= deviation * deviation / 2 - 1) continue;
      SCOPED_TRACE(::testing::Message() << n << ' ' << p << ' ' << y);
      check(ratios, y, log_probability(y) - log_probability(mode));
    }
  }
}

TEST(InnerFormulas, BinomialQuotients) {
  ForRatios([](const detail::BinomialRatios& ratios, Extended y, const Real& exact) {
    const Extended distance = std::fabs(y - ratios.mode);
    const Extended limit = 2e-19L * (1 + distance);
    EXPECT_LE(static_cast<Extended>(abs(ratios.LogQuotient(y) - exact)), limit);
    if (distance > 1000) return;
    EXPECT_LE(static_cast<Extended>(abs(ratios.Quotient(y) / exp(exact) - 1)), limit);
  });
}

// The constants of seven digits limit them, most where their fourth powers of k - mu count.
TEST(InnerFormulas, PoissonProbabilities) {
  for (const auto& [mu, limit] :
       {std::pair(10.0L, 6e-8L), {12.3L, 6e-8L}, {50.0L, 6e-8L}, {1e4L, 1.8e-6L}, {1e9L, 6e-8L}}) {
    const Extended deviation = std::sqrt(mu);
    const detail::PoissonDensities densities(mu, deviation);
    for (int i = -16; i <= 16; ++i) {
      const Extended k = std::floor(mu + i * deviation / 2);
      if (k < 0) continue;
      const detail::PoissonAndNormal at = densities.At(k);
      const Extended exact = full_precision::PoissonPmf(mu, static_cast<std::uint32_t>(k));
      EXPECT_LE(std::fabs(at.p_factor * std::exp(at.p_exponent) / exact - 1), limit)
          << mu << ' ' << k;
    }
  }
}

TEST(InnerFormulas, DiscretisedNormalDensities) {
  for (const Extended mu : {10.0L, 12.3L, 50.0L, 1e4L, 1e9L}) {
    const Extended deviation = std::sqrt(mu);
    const detail::PoissonDensities densities(mu, deviation);
    const Extended b1 = 1 / (24 * mu);
    const Extended b2 = 3 * b1 * b1 / 10;
    const Extended c3 = b1 * b2 / 7;
    const Extended c2 = b2 - 15 * c3;
    const Extended c1 = b1 - 6 * b2 + 45 * c3;
    const Extended c0 = 1 - b1 + 3 * b2 - 15 * c3;
    for (int i = -4; i <= 8; ++i) {
      const Extended k = std::max(0.0L, std::floor(mu + i * deviation));
      const detail::PoissonAndNormal at = densities.At(k);
      const Extended x = (k + 0.5L - mu) / deviation;
      const Extended x2 = x * x;
      EXPECT_LE(std::fabs(at.n_exponent + x2 / 2), 1e-17L * x2);
      const Extended factor = (((c3 * x2 + c2) * x2 + c1) * x2 + c0) / std::sqrt(2 * QorPi * mu);
      EXPECT_LE(std::fabs(at.n_factor / factor - 1), 1.5e-7L) << mu << ' ' << k;
    }
  }
}

TEST(InnerFormulas, PowersOfComplements) {
  for (const auto& [n, p] : {Trials{7, 0.3L},
                             {1e3L, 0.02L},
                             {1e10L, 3e-10L},
                             {1e10L, 2e-10L},
                             {1e17L, 1e-16L},
                             {1e18L, 1e-25L}}) {
    const Real exact = pow(1 - Real(p), Real(n));
    EXPECT_LE(static_cast<Extended>(abs(detail::PowerOfComplement(p, n) / exact - 1)),
              1e-18L + 1e-19L * n * p)
        << n << ' ' << p;
  }
}

// The first uniform value chooses an interval and a place in it; the second one accepts the place.
TEST(InnerFormulas, VonMisesIntervals) {
  for (const Extended k : {0.51L, 0.75L, 1.0L, 3.0L, 9.4L}) {
    const auto integral = [k](Extended lo, Extended hi) {
      return boost::math::quadrature::gauss<Extended, 30>::integrate(
          [k](Extended t) { return std::exp(k * std::cos(t)); }, lo, hi);
    };
    // Where 2k is whole, the method has one more interval, of no width.
    std::vector<Extended> ends{0};
    for (Extended j = 1; j < 2 * k; ++j) ends.push_back(std::acos(1 - j / k));
    ends.push_back(QorPi);
    Extended total = 0;
    for (std::size_t j = 1; j < ends.size(); ++j) total += integral(ends[j - 1], ends[j]);
    Extended below = 0;
    for (std::size_t j = 1; j < ends.size(); ++j) {
      const Extended weight = integral(ends[j - 1], ends[j]) / total;
      const Extended uniforms[] = {below + weight / 4, 1 - 0x1p-64L, 0.75L};
      const Extended* next = uniforms;
      const Extended angle = Random_von_Mises(k, [&next] { return *next++; });
      const Extended place = (angle - ends[j - 1]) / (ends[j] - ends[j - 1]);
      EXPECT_LE(std::fabs(place - 0.75L) * weight, 7e-9L) << k << ' ' << j;
      below += weight;
    }
  }
}

TEST(Fillers, DrawWhatSingleCallsDraw) {
  const auto expect_same = [](auto fill, auto draw) {
    std::mt19937_64 first(7);
    std::mt19937_64 second(7);
    const auto source_of = [](std::mt19937_64& engine) {
      return [&engine] { return static_cast<Extended>(engine()) * 0x1p-64L; };
    };
    auto source = source_of(first);
    auto other = source_of(second);
    auto filled = TQorFloatVector::WithLength(100);
    fill(std::span(filled.begin(), filled.end()), source);
    for (const Extended x : filled) EXPECT_EQ(x, draw(other));
    EXPECT_EQ(first, second);
  };
  expect_same([](auto range, auto& s) { FillUniform(range, s); }, [](auto& s) { return s(); });
  expect_same([](auto range, auto& s) { FillNormal(range, s); },
              [](auto& s) { return Random_Normal(s); });
  expect_same([](auto range, auto& s) { FillNormal(range, 3, -2, s); },
              [](auto& s) { return Random_Normal(3, -2, s); });
  expect_same([](auto range, auto& s) { FillExponential(range, s); },
              [](auto& s) { return Random_Exponential(s); });
  for (const Extended shape : {0.001L, 0.3L, 1.0L, 1.5L, 70.0L})
    expect_same([=](auto range, auto& s) { FillGamma(range, shape, s); },
                [=](auto& s) { return Random_Gamma(shape, s); });
}

}  // namespace

}  // namespace qorvex
