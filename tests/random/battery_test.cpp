// Statistical tests of each variate, at parameters that reach every branch of its method.
//
// The seed is fixed, so the outcome never changes. About 90 tests make up to four checks each,
// which fail at p < 1e-6: with another engine or after a change of a stream, the probability of a
// false alarm is 4e-4.

#include <array>
#include <cmath>
#include <string>

#include "qorvex/base/elementary.h"
#include "qorvex/stats/distributions/distributions.h"
#include "random/distribution_battery.h"
#include "random/variates.h"

namespace qorvex {

namespace {

using testing::ExpectAgreement;
using testing::Judge;
using testing::Reference;
using testing::ReferenceOf;

Reference Gamma(Extended shape) {
  Reference gamma = ReferenceOf(GammaDistribution(shape), shape >= 0.1L);
  // Variates below 5E-324 are 0.
  gamma.quantile = [exact = gamma.quantile](Extended p) { return std::max(exact(p), 5e-324L); };
  return gamma;
}

// Variates close to 1 are rounded to it.
Reference Beta(Extended a, Extended b) {
  Reference beta = ReferenceOf(BetaDistribution(a, b));
  beta.quantile = [exact = beta.quantile](Extended p) { return std::min(exact(p), 1 - 1e-16L); };
  return beta;
}

// For more trials than the class takes, the Poisson distribution, whose error is at most p.
Reference Binomial(Extended n, Extended p) {
  return n > 0x1p32L ? ReferenceOf(PoissonDistribution(n * p))
                     : ReferenceOf(BinomialDistribution(p, static_cast<std::uint32_t>(n)));
}

// The reference of a family of the library.
template <class Family>
Reference Of(Extended a, Extended b) {
  if constexpr (std::is_constructible_v<Family, Extended, Extended>) {
    return ReferenceOf(Family(a, b));
  } else {
    return ReferenceOf(Family(a));
  }
}

struct Judged {
  const char* variate;  // as in testing::Variates()
  std::vector<std::array<Extended, 2>> cases;
  Reference (*reference)(Extended a, Extended b);
  int draws = testing::UsualDraws();
};

void PrintTo(const Judged& judged, std::ostream* out) {
  *out << judged.variate;
}

class Battery : public ::testing::TestWithParam<Judged> {};

TEST_P(Battery, Agrees) {
  const auto& [variate, cases, reference, draws] = GetParam();
  const testing::NamedDraw draw = testing::Variates().at(variate);
  for (const auto [a, b] : cases) {
    SCOPED_TRACE(::testing::Message() << a << ' ' << b);
    ExpectAgreement([draw, a = a, b = b](auto source) { return draw(a, b, source); },
                    reference(a, b), draws);
  }
}

const Judged kVariates[] = {
    {"normal", {{0, 1}}, Of<NormalDistribution>},
    {"scaled-normal", {{3, 0.2L}}, Of<NormalDistribution>},
    {"gamma",
     {{0.001L}, {0.1L}, {0.5L}, {0.95L}, {1}, {1.2L}, {3.5L}, {50}, {1e6L}},
     [](Extended shape, Extended) { return Gamma(shape); }},
    {"chi-square", {{1}, {2}, {7}}, Of<ChiSquareDistribution>},
    {"exponential", {{}}, [](Extended, Extended) { return Gamma(1); }},
    {"weibull",
     {{0.7L}, {2}, {-2}},
     [](Extended a, Extended) { return ReferenceOf(WeibullDistribution(a), a > 0); }},
    {"beta",
     {{0.3L, 0.4L},
      {0.5L, 3},
      {3, 0.5L},
      {1, 1},
      {2, 1},
      {1.5L, 2.5L},
      {20, 3},
      {500, 800},
      {1, 0.001L}},
     Beta},
    // The curve of the quick rejection, f/(3 + q), is the boundary of the region for three degrees
    // of freedom up to a factor. It touches the boundaries for one and two from below, so what
    // remains of their regions is the region for three.
    {"student-t",
     {{1}, {2}, {3}, {5}, {30}, {1e6L}},
     [](Extended df, Extended) {
       return ReferenceOf(StudentTDistribution(std::max(df, 3.0L)), df > 4);
     }},
    {"cauchy", {{}}, [](Extended, Extended) { return ReferenceOf(CauchyDistribution()); }},
    {"log-normal",
     {{1, 1.13L}, {0.05L, 1.005L}, {7, 1.38L}},
     [](Extended median, Extended s) {
       return ReferenceOf(LogNormalDistribution(std::log(median), std::sqrt(2 * std::log(s))));
     }},
    {"inverse-gaussian",
     {{0.05L, 0}, {0.05L, 3}, {2, 0.5L}, {3, 1}, {3, 3}, {20, 100}, {1e4L, 0.5L}},
     Of<GeneralisedInverseGaussianDistribution>},
    {"von-mises",
     {{0}, {0.3L}, {0.5L}, {0.75L}, {1}, {3}, {9.4L}, {9.99L}},
     Of<VonMisesDistribution>,
     testing::UsualDraws() / 5},
    {"binomial-1",
     {{1, 0.3L}, {3, 0.2L}, {50, 0.9L}, {300, 0.7L}, {1000, 0.1L}, {1e4L, 0.5L}},
     Binomial},
    {"binomial-2",
     {{1, 0.3L},
      {50, 0.9L},
      {61, 0.5L},
      {100, 0.31L},
      {300, 0.7L},
      {1000, 0.1L},
      {1e5L, 0.5L},
      {2e9L, 0.5L},
      {1e17L, 1e-16L}},
     Binomial},
    {"negative-binomial",
     {{0.4L, 0.3L}, {3, 0.69L}, {300.5L, 0.4L}, {3, 0.71L}, {0.5L, 0.9L}, {12.5L, 0.95L}},
     [](Extended sk, Extended p) { return ReferenceOf(NegativeBinomialDistribution(p, sk)); }},
    {"poisson", {{0.3L}, {5}, {9.99L}, {10}, {12}, {50}, {1e4L}, {1e9L}}, Of<PoissonDistribution>},
};

INSTANTIATE_TEST_SUITE_P(Variates, Battery, ::testing::ValuesIn(kVariates), [](const auto& test) {
  std::string name = test.param.variate;
  std::ranges::replace(name, '-', '_');
  return name;
});

TEST(Battery, InverseGaussianFromTheGeneralisedVariate) {
  const Extended mean = 1.5L;
  const Extended shape = 4;
  ExpectAgreement(
      [=](auto s) { return mean / Random_Inv_Gauss(shape / mean, 0.5L, s); },
      ReferenceOf(GeneralisedInverseGaussianDistribution::InverseGaussian(mean, shape)));
}

constexpr Extended kShift = 1.005L;

Extended Unchanged(Extended x) {
  return x;
}
Extended Shifted(Extended x) {
  return x * kShift;
}

// Variates with the parameters of_draw, changed, against the distribution with the parameters
// of_reference.
struct Defect {
  const char* variate;
  std::array<Extended, 2> of_reference;
  std::array<Extended, 2> of_draw;
  Extended (*changed)(Extended) = Unchanged;
  int draws = 100'000;
};

const Defect kDefects[] = {
    {"scaled-normal", {7, 1}, {7 * kShift, 1}},
    {"gamma", {50}, {50}, Shifted},
    {"gamma", {50}, {50}, [](Extended x) { return 2 * 50 - x; }},
    {"chi-square", {90}, {90}, Shifted},
    {"exponential", {}, {}, Shifted, 2'500'000},
    {"weibull", {7}, {7}, Shifted},
    {"beta", {50, 80}, {50, 80}, Shifted},
    {"beta", {3, 4}, {4, 3}},
    {"student-t", {5}, {5}, std::fabs},
    {"cauchy", {}, {}, std::fabs},
    {"log-normal", {1, std::exp(0.0098L)}, {kShift, std::exp(0.0098L)}},
    {"inverse-gaussian", {20, 100}, {20, 100}, Shifted},
    {"inverse-gaussian", {3, 0.5L}, {3, 0.5L}, [](Extended x) { return 1 / x; }},
    {"von-mises", {9}, {9}, [](Extended x) { return x + QorPi * (kShift - 1); }, 40'000},
    {"von-mises", {3}, {3}, std::fabs, 10'000},
    {"binomial-1", {50, 0.6L}, {50, 0.6L * kShift}},
    {"binomial-1", {100, 0.05L}, {100, 0.05L}, [](Extended x) { return 2 * 5 - x; }},
    {"binomial-2", {300, 0.3L}, {300, 0.3L * kShift}},
    {"negative-binomial", {80, 0.5L}, {80 * kShift, 0.5L}},
    {"poisson", {50}, {50 * kShift}},
    {"poisson", {50}, {50}, [](Extended x) { return 2 * 50 - x; }},
};

TEST(PlantedDefects, AreFound) {
  for (const auto& [variate, of_reference, of_draw, changed, draws] : kDefects) {
    const auto judged = std::ranges::find(kVariates, std::string_view(variate), &Judged::variate);
    const auto reference = judged->reference(of_reference[0], of_reference[1]);
    const auto draw = [draw = testing::Variates().at(variate), changed = changed,
                       p = of_draw](UniformSource s) { return changed(draw(p[0], p[1], s)); };
    EXPECT_FALSE(Judge(draw, reference, draws).IsGood()) << variate << ' ' << of_reference[0];
  }
  EXPECT_FALSE(
      Judge([](auto s) { return Random_T(1, s); }, ReferenceOf(CauchyDistribution())).IsGood());
  EXPECT_FALSE(
      Judge([](auto s) { return Random_T(2, s); }, ReferenceOf(StudentTDistribution(2), false))
          .IsGood());
}

}  // namespace

}  // namespace qorvex
