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

using testing::Draw;
using testing::ExpectAgreement;
using testing::Judge;
using testing::Reference;
using testing::ReferenceOf;

Reference Normal(Extended mean, Extended std_dev) {
  return ReferenceOf(NormalDistribution(mean, std_dev));
}

// Variates below 5E-324 are 0.
Reference Gamma(Extended shape, Extended = 0) {
  Reference gamma = ReferenceOf(GammaDistribution(shape), shape >= 0.1L);
  gamma.quantile = [exact = gamma.quantile](Extended p) { return std::max(exact(p), 5e-324L); };
  return gamma;
}

Reference ChiSquare(Extended df, Extended = 0) {
  return ReferenceOf(ChiSquareDistribution(df));
}

// Variates close to 1 are rounded to it.
Reference Beta(Extended a, Extended b) {
  Reference beta = ReferenceOf(BetaDistribution(a, b));
  beta.quantile = [exact = beta.quantile](Extended p) { return std::min(exact(p), 1 - 1e-16L); };
  return beta;
}

Reference StudentT(Extended df) {
  return ReferenceOf(StudentTDistribution(df), df > 4);
}

Reference Weibull(Extended a, Extended = 0) {
  return ReferenceOf(WeibullDistribution(a), a > 0);
}

Reference Cauchy(Extended = 0, Extended = 0) {
  return ReferenceOf(CauchyDistribution());
}

Reference GeneralisedInverseGaussian(Extended h, Extended b) {
  return ReferenceOf(GeneralisedInverseGaussianDistribution(h, b));
}

Reference VonMises(Extended k, Extended = 0) {
  return ReferenceOf(VonMisesDistribution(k));
}

Reference Poisson(Extended mu, Extended = 0) {
  return ReferenceOf(PoissonDistribution(mu));
}

// For more trials than the class takes, the Poisson distribution, whose error is at most p.
Reference Binomial(Extended n, Extended p) {
  return n > 0x1p32L ? Poisson(n * p)
                     : ReferenceOf(BinomialDistribution(p, static_cast<std::uint32_t>(n)));
}

Reference NegativeBinomial(Extended sk, Extended p) {
  return ReferenceOf(NegativeBinomialDistribution(p, sk));
}

// Three components, the covariance matrix, and its triangle packed by columns.
const TQorFloatVector kMean{1, -2, 0.5L};
constexpr Extended kMatrix[3][3] = {{4, 1.2L, -1}, {1.2L, 1, 0.3L}, {-1, 0.3L, 2}};
const TQorFloatVector kCovariance{4, 1.2L, 1, -1, 0.3L, 2};

TQorFloatVector DeviationsFromMean(UniformSource source) {
  TQorFloatVector factor;
  TQorFloatVector variate;
  std::int32_t error = 1;
  Random_MVNorm(kMean, kCovariance, factor, variate, error, source);
  for (std::size_t i = 0; i < 3; ++i) variate[i] -= kMean[i];
  return variate;
}

// The inverse of the matrix is computed from cofactors.
Extended MahalanobisDistance(const TQorFloatVector& x) {
  Extended sum = 0;
  Extended determinant = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      const auto at = [=](std::size_t row, std::size_t col) {
        return kMatrix[(i + row) % 3][(j + col) % 3];
      };
      const Extended cofactor = at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1);
      sum += x[i] * cofactor * x[j];
      determinant += kMatrix[i][j] * cofactor / 3;
    }
  }
  return sum / determinant;
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
    {"normal", {{0, 1}}, Normal},
    {"scaled-normal", {{3, 0.2L}}, Normal},
    {"gamma", {{0.001L}, {0.1L}, {0.5L}, {0.95L}, {1}, {1.2L}, {3.5L}, {50}, {1e6L}}, Gamma},
    {"chi-square", {{1}, {2}, {7}}, ChiSquare},
    {"exponential", {{1}}, Gamma},
    {"weibull", {{0.7L}, {2}, {-2}}, Weibull},
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
     [](Extended df, Extended) { return StudentT(std::max(df, 3.0L)); }},
    {"cauchy", {{}}, Cauchy},
    {"log-normal",
     {{1, 1.13L}, {0.05L, 1.005L}, {7, 1.38L}},
     [](Extended median, Extended s) {
       return ReferenceOf(LogNormalDistribution(std::log(median), std::sqrt(2 * std::log(s))));
     }},
    {"inverse-gaussian",
     {{0.05L, 0}, {0.05L, 3}, {2, 0.5L}, {3, 1}, {3, 3}, {20, 100}, {1e4L, 0.5L}},
     GeneralisedInverseGaussian},
    {"von-mises",
     {{0}, {0.3L}, {0.5L}, {0.75L}, {1}, {3}, {9.4L}, {9.99L}},
     VonMises,
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
     NegativeBinomial},
    {"poisson", {{0.3L}, {5}, {9.99L}, {10}, {12}, {50}, {1e4L}, {1e9L}}, Poisson},
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

// The variances of weighted sums of components show all covariances.
TEST(Battery, MultivariateNormal) {
  using Weights = std::array<Extended, 3>;
  for (const auto& w : {Weights{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}, {1, 0, 1}, {0, 1, 1}}) {
    SCOPED_TRACE(::testing::PrintToString(w));
    Extended variance = 0;
    for (std::size_t i = 0; i < 3; ++i)
      for (std::size_t j = 0; j < 3; ++j) variance += w[i] * kMatrix[i][j] * w[j];
    const auto draw = [&w](UniformSource s) {
      const TQorFloatVector x = DeviationsFromMean(s);
      return w[0] * x[0] + w[1] * x[1] + w[2] * x[2];
    };
    ExpectAgreement(draw, Normal(0, std::sqrt(variance)));
  }
  ExpectAgreement([](auto s) { return MahalanobisDistance(DeviationsFromMean(s)); }, ChiSquare(3));
}

TEST(PlantedDefects, AreFound) {
  struct Defect {
    const char* name;
    Reference reference;
    Draw draw;
    int draws = 100'000;
  };
  constexpr Extended shift = 1.005L;
  const Defect defects[] = {
      {"normal, shifted", Normal(7, 1), [](auto s) { return Random_Normal(7 * shift, 1, s); }},
      {"gamma, shifted", Gamma(50), [](auto s) { return Random_Gamma(50, s) * shift; }},
      {"gamma, mirrored", Gamma(50), [](auto s) { return 2 * 50 - Random_Gamma(50, s); }},
      {"chi-square, shifted", ChiSquare(90), [](auto s) { return Random_ChiSq(90, s) * shift; }},
      {"exponential, shifted", Gamma(1), [](auto s) { return Random_Exponential(s) * shift; },
       2'500'000},
      {"Weibull, shifted", Weibull(7), [](auto s) { return Random_Weibull(7, s) * shift; }},
      {"beta, shifted", Beta(50, 80), [](auto s) { return Random_Beta(50, 80, s) * shift; }},
      {"beta, exchanged", Beta(3, 4), [](auto s) { return Random_Beta(4, 3, s); }},
      {"t, one-sided", StudentT(5), [](auto s) { return std::fabs(Random_T(5, s)); }},
      {"t of 1 as it is", StudentT(1), [](auto s) { return Random_T(1, s); }},
      {"t of 2 as it is", StudentT(2), [](auto s) { return Random_T(2, s); }},
      {"Cauchy, one-sided", Cauchy(), [](auto s) { return std::fabs(Random_Cauchy(s)); }},
      {"log-normal, shifted", ReferenceOf(LogNormalDistribution(0, 0.14L)),
       [](auto s) { return Random_LogNormal(shift, std::exp(0.0098L), s); }},
      {"inverse Gaussian, shifted", GeneralisedInverseGaussian(20, 100),
       [](auto s) { return Random_Inv_Gauss(20, 100, s) * shift; }},
      {"inverse Gaussian, sign of b", GeneralisedInverseGaussian(3, 0.5L),
       [](auto s) { return 1 / Random_Inv_Gauss(3, 0.5L, s); }},
      {"von Mises, shifted", VonMises(9),
       [](auto s) { return Random_von_Mises(9, s) + QorPi * (shift - 1); }, 40'000},
      {"von Mises, one-sided", VonMises(3),
       [](auto s) { return std::fabs(Random_von_Mises(3, s)); }, 10'000},
      {"binomial 1, shifted", Binomial(50, 0.6L),
       [](auto s) { return Random_Binomial1(50, 0.6L * shift, s); }},
      {"binomial 1, mirrored", Binomial(100, 0.05L),
       [](auto s) { return 2 * 5 - Random_Binomial1(100, 0.05L, s); }},
      {"binomial 2, shifted", Binomial(300, 0.3L),
       [](auto s) { return Random_Binomial2(300, 0.3L * shift, s); }},
      {"negative binomial, shifted", NegativeBinomial(80, 0.5L),
       [](auto s) { return Random_Neg_Binomial(80 * shift, 0.5L, s); }},
      {"Poisson, shifted", Poisson(50), [](auto s) { return Random_Poisson(50 * shift, s); }},
      {"Poisson, mirrored", Poisson(50), [](auto s) { return 2 * 50 - Random_Poisson(50, s); }},
      {"multivariate normal, sign of a covariance", Normal(0, 2),
       [](auto s) {
         const TQorFloatVector x = DeviationsFromMean(s);
         return x[0] - x[2];
       }},
  };
  for (const Defect& defect : defects)
    EXPECT_FALSE(Judge(defect.draw, defect.reference, defect.draws).IsGood()) << defect.name;
}

}  // namespace

}  // namespace qorvex
