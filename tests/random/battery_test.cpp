// Each variate at parameters that reach every branch of its method. About 110 judgements of at most
// four checks fail at p < 1e-6 each: another engine, or a change of a stream, would raise a false
// alarm with a probability of 5e-4. With the fixed seed the outcome is always the same.

#include "qorvex/random/QorvexRandom.h"

#include <array>
#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/stats/full_precision.h"
#include "random/distribution_battery.h"

namespace qorvex {

namespace {

namespace fp = full_precision;
using testing::Draw;
using testing::ExpectAgreement;
using testing::Judge;
using testing::Moments;
using testing::Reference;
using testing::Support;

constexpr Support kReal{-kInfinity, kInfinity};
constexpr Support kPositive{0, kInfinity};
constexpr Support kCounts{0, kInfinity, true};

// A family of the library whose points are of the given type.
template <class Point = Extended, class Lower, class Quantile, class... Parameters>
Reference Family(Lower lower, Quantile quantile, Moments moments, Support support,
                 Parameters... parameters) {
  return {[=](Extended x) { return lower(parameters..., static_cast<Point>(x)); },
          [=](Extended p) { return static_cast<Extended>(quantile(parameters..., p)); }, moments,
          support};
}

Reference Normal(Extended mean, Extended std_dev) {
  return Family(fp::NormalLower, fp::NormalQuantile, {mean, std_dev * std_dev}, kReal, mean,
                std_dev);
}

Reference Gamma(Extended shape) {
  return Family(fp::GammaLower, fp::GammaQuantile, {shape, shape}, kPositive, shape, 1);
}

Reference ChiSquare(Extended df) {
  return Family(fp::ChiSquareLower, fp::ChiSquareQuantile, {df, 2 * df}, kPositive, df);
}

Reference LogNormal(Extended m, Extended s) {
  const Extended mean = std::exp(m + s * s / 2);
  return Family(fp::LogNormalLower, fp::LogNormalQuantile, {mean, mean * mean * std::expm1(s * s)},
                kPositive, m, s);
}

Reference Beta(Extended a, Extended b) {
  const Extended sum = a + b;
  return Family(fp::BetaLower, fp::BetaQuantile, {a / sum, a * b / (sum * sum * (sum + 1))}, {0, 1},
                a, b);
}

Reference StudentT(Extended df) {
  return Family(fp::StudentTLower, fp::StudentTQuantile,
                {df > 2 ? 0 : kNaN, df > 4 ? df / (df - 2) : kNaN}, kReal, df);
}

Reference Poisson(Extended mu) {
  return Family<std::uint32_t>(fp::PoissonLower, fp::PoissonQuantile, {mu, mu}, kCounts, mu);
}

Reference Binomial(std::uint32_t n, Extended p) {
  const Extended mean = static_cast<Extended>(n) * p;
  return Family<std::uint32_t>(fp::BinomialLower, fp::BinomialQuantile, {mean, mean * (1 - p)},
                               {0, static_cast<Extended>(n), true}, p, n);
}

// By the quotients of neighbouring probabilities.
Reference NegativeBinomial(Extended sk, Extended p) {
  const Extended mean = sk * p / (1 - p);
  Extended probability = std::pow(1 - p, sk);
  std::vector<Extended> counts{0};
  std::vector<Extended> cumulative{probability};
  for (Extended k = 1; k < mean || probability > 1e-18L; ++k) {
    probability *= (sk + k - 1) * p / k;
    counts.push_back(k);
    cumulative.push_back(cumulative.back() + probability);
  }
  return testing::Tabulated(counts, cumulative, {mean, mean / (1 - p)}, kCounts);
}

Reference Weibull(Extended a) {
  const Extended mean = std::tgamma(1 + 1 / a);
  // The negative shapes below have no variance.
  const Moments moments = a > 0 ? Moments{mean, std::tgamma(1 + 2 / a) - mean * mean} : Moments{};
  return {[a](Extended x) {
            const Extended power = std::pow(x, a);
            return a > 0 ? -std::expm1(-power) : std::exp(-power);
          },
          [a](Extended p) { return std::pow(a > 0 ? -std::log1p(-p) : -std::log(p), 1 / a); },
          moments, kPositive};
}

Reference Cauchy() {
  return {[](Extended x) { return 0.5L + std::atan(x) / QorPi; },
          [](Extended p) { return std::tan(QorPi * (p - 0.5L)); },
          {},
          kReal};
}

// Over the logarithm of x, down to e^-60 of the greatest density.
Reference GeneralisedInverseGaussian(Extended h, Extended b) {
  const auto log_density = [=](Extended t) { return b * t - h * std::cosh(t); };
  const Extended mode = std::asinh(b / h);
  const auto end = [&](int direction) {
    Extended reach = 0x1p-10L;
    while (log_density(mode + direction * reach) > log_density(mode) - 60) reach *= 1.25L;
    return mode + direction * reach;
  };
  return testing::Integrated(
      log_density, [](Extended t) { return std::exp(t); }, end(-1), end(1), kPositive);
}

Reference VonMises(Extended k) {
  return testing::Integrated([k](Extended t) { return k * std::cos(t); },
                             [](Extended t) { return t; }, -QorPi, QorPi, {-QorPi, QorPi});
}

TEST(Battery, Normal) {
  ExpectAgreement([](auto source) { return Random_Normal(source); }, Normal(0, 1));
  ExpectAgreement([](auto source) { return Random_Normal(3, 0.2L, source); }, Normal(3, 0.2L));
}

TEST(Battery, Gamma) {
  for (const Extended shape : {0.1L, 0.5L, 0.95L, 1.0L, 1.2L, 3.5L, 50.0L, 1e6L}) {
    SCOPED_TRACE(shape);
    ExpectAgreement([=](auto source) { return Random_Gamma(shape, source); }, Gamma(shape));
  }
  // Nearly half of the variates are below the least one and become 0.
  Reference small = Gamma(0.001L);
  small.quantile = [exact = small.quantile](Extended p) { return std::max(exact(p), 5e-324L); };
  small.moments = {};
  ExpectAgreement([](auto source) { return Random_Gamma(0.001L, source); }, small);
}

TEST(Battery, ChiSquare) {
  for (const int df : {1, 2, 7}) {
    SCOPED_TRACE(df);
    ExpectAgreement([=](auto source) { return Random_ChiSq(df, source); },
                    ChiSquare(static_cast<Extended>(df)));
  }
}

TEST(Battery, ExponentialAndWeibull) {
  ExpectAgreement([](auto source) { return Random_Exponential(source); }, Gamma(1));
  for (const Extended a : {0.7L, 2.0L, -2.0L}) {
    SCOPED_TRACE(a);
    ExpectAgreement([=](auto source) { return Random_Weibull(a, source); }, Weibull(a));
  }
}

TEST(Battery, Beta) {
  for (const auto& [a, b] : {std::pair(0.3L, 0.4L),
                             {0.5L, 3.0L},
                             {3.0L, 0.5L},
                             {1.0L, 1.0L},
                             {2.0L, 1.0L},
                             {1.5L, 2.5L},
                             {20.0L, 3.0L},
                             {500.0L, 800.0L}}) {
    SCOPED_TRACE(::testing::Message() << a << ' ' << b);
    ExpectAgreement([a = a, b = b](auto source) { return Random_Beta(a, b, source); }, Beta(a, b));
  }
  // Nearly all variates are rounded to 1.
  Reference small = Beta(1, 0.001L);
  small.quantile = [exact = small.quantile](Extended p) { return std::min(exact(p), 1 - 1e-16L); };
  ExpectAgreement([](auto source) { return Random_Beta(1, 0.001L, source); }, small);
}

TEST(Battery, StudentT) {
  for (const int df : {3, 5, 30, 1'000'000}) {
    SCOPED_TRACE(df);
    ExpectAgreement([=](auto source) { return Random_T(df, source); },
                    StudentT(static_cast<Extended>(df)));
  }
}

// The curve of the quick rejection, f/(3 + q), is the boundary of the region for three degrees of
// freedom up to a factor. It touches the boundaries for one and two from below, so that what is left
// of their regions is that for three.
TEST(Battery, StudentTOfOneOrTwoDegreesOfFreedomHasThree) {
  for (const int df : {1, 2}) {
    SCOPED_TRACE(df);
    const auto draw = [=](UniformSource source) { return Random_T(df, source); };
    ExpectAgreement(draw, StudentT(3));
    EXPECT_FALSE(Judge(draw, StudentT(static_cast<Extended>(df))).IsGood());
  }
}

TEST(Battery, Cauchy) {
  ExpectAgreement([](auto source) { return Random_Cauchy(source); }, Cauchy());
}

TEST(Battery, LogNormal) {
  for (const auto& [m, s] : {std::pair(0.0L, 0.5L), {-3.0L, 0.1L}, {2.0L, 0.8L}}) {
    SCOPED_TRACE(::testing::Message() << m << ' ' << s);
    const Extended mean = std::exp(m);
    const Extended std_dev = std::exp(s * s / 2);
    ExpectAgreement([=](auto source) { return Random_LogNormal(mean, std_dev, source); },
                    LogNormal(m, s));
  }
}

TEST(Battery, GeneralisedInverseGaussian) {
  for (const auto& [h, b] : {std::pair(0.05L, 0.0L),
                             {0.05L, 3.0L},
                             {2.0L, 0.5L},
                             {3.0L, 1.0L},
                             {3.0L, 3.0L},
                             {20.0L, 100.0L},
                             {1e4L, 0.5L}}) {
    SCOPED_TRACE(::testing::Message() << h << ' ' << b);
    ExpectAgreement([h = h, b = b](auto source) { return Random_Inv_Gauss(h, b, source); },
                    GeneralisedInverseGaussian(h, b));
  }
}

TEST(Battery, InverseGaussianAgainstItsClosedForm) {
  constexpr Extended mean = 1.5L;
  constexpr Extended shape = 4;
  Reference reference = GeneralisedInverseGaussian(shape / mean, 0.5L);
  reference.quantile = [exact = reference.quantile](Extended p) { return mean / exact(1 - p); };
  reference.lower = [](Extended x) {
    const Extended root = std::sqrt(shape / x);
    return fp::NormalLower(0, 1, root * (x / mean - 1)) +
           std::exp(2 * shape / mean) * fp::NormalLower(0, 1, -root * (x / mean + 1));
  };
  reference.moments = {mean, mean * mean * mean / shape};
  ExpectAgreement([](auto source) { return mean / Random_Inv_Gauss(shape / mean, 0.5L, source); },
                  reference);
}

TEST(Battery, VonMises) {
  for (const Extended k : {0.0L, 0.3L, 0.5L, 0.75L, 1.0L, 3.0L, 9.4L, 9.99L}) {
    SCOPED_TRACE(k);
    ExpectAgreement([=](auto source) { return Random_von_Mises(k, source); }, VonMises(k), testing::kDraws / 5);
  }
}

TEST(Battery, Binomial) {
  // Fewer draws where they take long.
  struct Case {
    std::uint32_t n;
    Extended p;
    int draws_by_inversion = testing::kDraws;
  };
  for (const auto& [n, p, draws_by_inversion] : {Case{1, 0.3L},
                                                 {3, 0.2L},
                                                 {40, 0.5L},
                                                 {50, 0.9L},
                                                 {61, 0.5L},
                                                 {100, 0.31L},
                                                 {300, 0.7L},
                                                 {1000, 0.1L},
                                                 {100'000, 0.5L, testing::kDraws / 10},
                                                 {2'000'000'000, 1e-3L, 0},
                                                 {2'000'000'000, 0.5L, 0}}) {
    SCOPED_TRACE(::testing::Message() << n << ' ' << p);
    const Reference reference = Binomial(n, p);
    ExpectAgreement([n = n, p = p](auto source) { return Random_Binomial2(n, p, source); },
                    reference);
    if (draws_by_inversion == 0) continue;
    const auto trials = static_cast<std::int32_t>(n);
    ExpectAgreement([=, p = p](auto source) { return Random_Binomial1(trials, p, source); },
                    reference, draws_by_inversion);
  }
  // The Poisson distribution, but for 1e-16.
  ExpectAgreement(
      [](auto source) { return Random_Binomial2(100'000'000'000'000'000, 1e-16L, source); },
      Poisson(10));
}

TEST(Battery, NegativeBinomial) {
  for (const auto& [sk, p] : {std::pair(0.4L, 0.3L),
                              {3.0L, 0.69L},
                              {300.5L, 0.4L},
                              {3.0L, 0.71L},
                              {0.5L, 0.9L},
                              {12.5L, 0.95L}}) {
    SCOPED_TRACE(::testing::Message() << sk << ' ' << p);
    ExpectAgreement([sk = sk, p = p](auto source) { return Random_Neg_Binomial(sk, p, source); },
                    NegativeBinomial(sk, p));
  }
}

TEST(Battery, Poisson) {
  for (const Extended mu : {0.3L, 5.0L, 9.99L, 10.0L, 12.0L, 50.0L, 1e4L, 1e9L}) {
    SCOPED_TRACE(mu);
    ExpectAgreement([=](auto source) { return Random_Poisson(mu, source); }, Poisson(mu));
  }
}

// Three components, and the covariance matrix packed by columns.
const TQorFloatVector kMean{1, -2, 0.5L};
const TQorFloatVector kCovariance{4, 1.2L, 1, -1, 0.3L, 2};

TQorFloatVector MultivariateNormal(UniformSource source) {
  TQorFloatVector factor;
  TQorFloatVector variate;
  std::int32_t error = 1;
  Random_MVNorm(kMean, kCovariance, factor, variate, error, source);
  return variate;
}

// The components and the sums of two of them: their variances tell all covariances.
TEST(Battery, MultivariateNormalComponents) {
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = i; j < 3; ++j) {
      SCOPED_TRACE(::testing::Message() << i << ' ' << j);
      const auto covariance = [](std::size_t r, std::size_t c) {
        return kCovariance[c * (c + 1) / 2 + r];
      };
      const Extended variance =
          i == j ? covariance(i, i) : covariance(i, i) + covariance(j, j) + 2 * covariance(i, j);
      ExpectAgreement(
          [=](auto source) {
            const TQorFloatVector x = MultivariateNormal(source);
            return i == j ? x[i] : x[i] + x[j];
          },
          Normal(i == j ? kMean[i] : kMean[i] + kMean[j], std::sqrt(variance)));
    }
  }
}

// The distance is weighted with the inverse of the covariance matrix, by its adjugate.
TEST(Battery, MultivariateNormalDistance) {
  const auto [a, b, d, c, e, f] =
      std::array{kCovariance[0], kCovariance[1], kCovariance[2],
                 kCovariance[3], kCovariance[4], kCovariance[5]};
  const Extended adjugate[3][3] = {{d * f - e * e, c * e - b * f, b * e - c * d},
                                   {c * e - b * f, a * f - c * c, b * c - a * e},
                                   {b * e - c * d, b * c - a * e, a * d - b * b}};
  const Extended determinant = a * adjugate[0][0] + b * adjugate[0][1] + c * adjugate[0][2];
  ExpectAgreement(
      [&](auto source) {
        const TQorFloatVector x = MultivariateNormal(source);
        Extended sum = 0;
        for (std::size_t i = 0; i < 3; ++i)
          for (std::size_t j = 0; j < 3; ++j)
            sum += (x[i] - kMean[i]) * adjugate[i][j] * (x[j] - kMean[j]);
        return sum / determinant;
      },
      ChiSquare(3));
}

TEST(Battery, CatchesPlantedDefects) {
  struct Defect {
    const char* name;
    Draw draw;
    Reference reference;
    int draws = 100'000;
  };
  constexpr Extended shift = 1.005L;
  const Defect defects[] = {
      {"normal, shifted", [](auto s) { return Random_Normal(7 * shift, 1, s); }, Normal(7, 1)},
      {"gamma, shifted", [](auto s) { return Random_Gamma(50, s) * shift; }, Gamma(50)},
      {"gamma, mirrored", [](auto s) { return 2 * 50 - Random_Gamma(50, s); }, Gamma(50)},
      {"chi-square, shifted", [](auto s) { return Random_ChiSq(90, s) * shift; }, ChiSquare(90)},
      {"exponential, shifted", [](auto s) { return Random_Exponential(s) * shift; }, Gamma(1),
       2'500'000},
      {"Weibull, shifted", [](auto s) { return Random_Weibull(7, s) * shift; }, Weibull(7)},
      {"beta, shifted", [](auto s) { return Random_Beta(50, 80, s) * shift; }, Beta(50, 80)},
      {"beta, exchanged", [](auto s) { return Random_Beta(0.4L, 0.3L, s); }, Beta(0.3L, 0.4L)},
      {"t, one-sided", [](auto s) { return std::fabs(Random_T(5, s)); }, StudentT(5)},
      {"Cauchy, one-sided", [](auto s) { return std::fabs(Random_Cauchy(s)); }, Cauchy()},
      {"log-normal, shifted", [](auto s) { return Random_LogNormal(shift, std::exp(0.01L), s); },
       LogNormal(0, std::sqrt(0.02L))},
      {"inverse Gaussian, shifted", [](auto s) { return Random_Inv_Gauss(20, 100, s) * shift; },
       GeneralisedInverseGaussian(20, 100)},
      {"inverse Gaussian, sign of b", [](auto s) { return 1 / Random_Inv_Gauss(3, 0.5L, s); },
       GeneralisedInverseGaussian(3, 0.5L)},
      {"von Mises, shifted", [](auto s) { return Random_von_Mises(9, s) + QorPi * (shift - 1); },
       VonMises(9), 40'000},
      {"von Mises, one-sided", [](auto s) { return std::fabs(Random_von_Mises(3, s)); },
       VonMises(3), 10'000},
      {"binomial 1, shifted", [](auto s) { return Random_Binomial1(50, 0.6L * shift, s); },
       Binomial(50, 0.6L)},
      {"binomial 2, shifted", [](auto s) { return Random_Binomial2(300, 0.3L * shift, s); },
       Binomial(300, 0.3L)},
      {"binomial 1, mirrored", [](auto s) { return 2 * 5 - Random_Binomial1(100, 0.05L, s); },
       Binomial(100, 0.05L)},
      {"negative binomial, shifted", [](auto s) { return Random_Neg_Binomial(80 * shift, 0.5L, s); },
       NegativeBinomial(80, 0.5L)},
      {"Poisson, shifted", [](auto s) { return Random_Poisson(50 * shift, s); }, Poisson(50)},
      {"Poisson, mirrored", [](auto s) { return 2 * 50 - Random_Poisson(50, s); }, Poisson(50)},
      {"multivariate normal, sign of a covariance",
       [](auto s) {
         const TQorFloatVector x = MultivariateNormal(s);
         return x[0] + (2 * kMean[2] - x[2]);
       },
       Normal(1.5L, 2)},
  };
  for (const Defect& defect : defects)
    EXPECT_FALSE(Judge(defect.draw, defect.reference, defect.draws).IsGood()) << defect.name;
}

}  // namespace

}  // namespace qorvex
