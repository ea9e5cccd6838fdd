#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/expm1.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/special_functions/log1p.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>

#include "qorvex/base/text.h"
#include "qorvex/stats/distributions/distributions.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using Real = boost::multiprecision::number<boost::multiprecision::cpp_bin_float<60>>;

// The distance from an exact value in units of 1e-19 of it.
Extended Units(Extended value, const Real& exact) {
  return static_cast<Extended>(abs(Real(value) / exact - 1)) * 1e19L;
}

TEST(Distributions, AgreeWithAComputationInHigherPrecision) {
  testing::Engine engine(5);
  const auto log_uniform = [&](Extended low, Extended high) {
    return low *
           std::exp(std::log(high / low) * (static_cast<Extended>(engine() >> 1U) * 0x1p-63L));
  };
  for (int i = 0; i < 200; ++i) {
    const auto shape = [&] {
      const Extended any = log_uniform(0.03L, 2e4L);
      return engine() % 2 == 0 ? any : std::ceil(2 * any) / 2;  // halves have a table
    };
    const Extended a = shape();
    const Extended b = shape();
    const Extended p = log_uniform(1e-200L, 1);
    SCOPED_TRACE(Float2Str(a) + ' ' + Float2Str(b) + ' ' + Float2Str(p));
    const GammaDistribution gamma(a);
    const BetaDistribution beta(a, b);
    const Tail tail = i % 2 == 0 ? Tail::kLower : Tail::kUpper;
    const Extended x = gamma.Quantile(tail, p);
    const Real below = boost::math::gamma_p(Real(a), Real(x));
    const Real above = boost::math::gamma_q(Real(a), Real(x));
    ASSERT_LT(Units(Lower(gamma, x), below), 40);
    ASSERT_LT(Units(Upper(gamma, x), above), 40);
    ASSERT_LT(Units(LogLower(gamma, x), below < 0.5 ? log(below) : log1p(-above)), 40);
    ASSERT_LT(Units(LogUpper(gamma, x), above < 0.5 ? log(above) : log1p(-below)), 40);
    const Extended y = beta.Quantile(tail, p);
    if (y == 1) continue;
    ASSERT_LT(Units(Lower(beta, y), boost::math::ibeta(Real(a), Real(b), Real(y))), 60);
    ASSERT_LT(Units(Upper(beta, y), boost::math::ibetac(Real(a), Real(b), Real(y))), 60);
  }
}

// Probabilities of whole numbers are rounded once, so those with 64 bits are exact.
TEST(Distributions, IsExactForFewTrialsAndSmallWholeShapes) {
  for (const std::uint32_t n : {1U, 2U, 4U, 5U, 17U, 30U, 255U}) {
    for (const Extended p : {0.5L, 0.25L, 0.6875L, 0.3L, 1e-10L, 0x1p-60L, 1 - 0x1p-60L}) {
      const Real success = p;
      std::vector<Real> exact;
      Real ways = 1;
      for (std::uint32_t k = 0; k <= n; ++k) {
        exact.push_back(ways * pow(success, k) * pow(1 - success, n - k));
        ways = ways * (n - k) / (k + 1);
      }
      Real below = 0;
      for (std::uint32_t k = 0; k <= n; ++k) {
        SCOPED_TRACE(::testing::Message() << n << ' ' << k << ' ' << p);
        EXPECT_EQ(BinomialDistribution(p, n).Pmf(k), static_cast<Extended>(exact[k]));
        const Extended density = BetaDistribution(k + 1, n - k + 1).Pdf(p);
        EXPECT_EQ(density, static_cast<Extended>((n + 1) * exact[k]));
        below += exact[k];
        const auto lower = static_cast<Extended>(below);
        if (k < n) {
          ASSERT_LE(Units(Lower(BinomialDistribution(p, n), k), below), 13);
        }
        const bool beyond_sums = k >= 16 && (n - k > 16 || below < 1e-12L);
        if (Real(lower) != below || below > 1 - Real(1e-12L) || beyond_sums) continue;
        EXPECT_EQ(Lower(BinomialDistribution(p, n), k), lower);
        EXPECT_EQ(Upper(BinomialDistribution(p, n), k), 1 - lower);
        EXPECT_EQ(Upper(BetaDistribution(k + 1, n - k), p), lower);
      }
    }
  }
  EXPECT_EQ(HypergeometricDistribution(50, 5, 13).Pmf(2),
            static_cast<Extended>(Real(606060) / 2118760));
  EXPECT_EQ(Upper(FDistribution(2, 4), 2), 0.25L);
  // Powers of whole numbers, whatever their size.
  EXPECT_EQ(BinomialDistribution(0.5L, 16'382).Pmf(0), 0x1p-16382L);
  EXPECT_EQ(BinomialDistribution(0x1p-9L, 1'700).Pmf(1'700), 0x1p-15300L);
  EXPECT_EQ(Upper(BinomialDistribution(0.5L, 300), 299), 0x1p-300L);
  EXPECT_EQ(Lower(BetaDistribution(300, 1), 0.5L), 0x1p-300L);
  EXPECT_EQ(BetaDistribution(1, 512).Pdf(0.5L), 0x1p-502L);
  const Real ln_2 = log(Real(2));
  EXPECT_LT(Units(LogUpper(BetaDistribution(1, 1e15L), 0.5L), -1'000'000'000'000'000 * ln_2), 2);
  EXPECT_LT(Units(LogUpper(BinomialDistribution(0x1p-300L, 200), 199), -60'000 * ln_2), 2);
}

TEST(Distributions, HasClosedFormsAtTheEdgesAndSymmetryAtOneHalf) {
  for (const Extended shape : {1e-3L, 0.4L, 1.0L, 2.5L, 300.25L, 1e6L}) {
    for (const Extended x : {1e-2000L, 1e-250L, 1e-9L, 0.001L, 0.3L, 0.5L, 0.99L, 1 - 0x1p-60L}) {
      SCOPED_TRACE(::testing::Message() << shape << ' ' << x);
      const Real power = exp(Real(shape) * log(Real(x)));
      const Real power_of_rest = exp(Real(shape) * boost::math::log1p(-Real(x)));
      const Real above = -boost::math::expm1(Real(shape) * log(Real(x)));
      const Real below = -boost::math::expm1(Real(shape) * boost::math::log1p(-Real(x)));
      if (power > 1e-4900L) {
        ASSERT_LT(Units(Lower(BetaDistribution(shape, 1), x), power), 10);
      }
      ASSERT_LT(Units(Upper(BetaDistribution(shape, 1), x), above), 10);
      if (power_of_rest > 1e-4900L) {
        ASSERT_LT(Units(Upper(BetaDistribution(1, shape), x), power_of_rest), 10);
      }
      ASSERT_LT(Units(Lower(BetaDistribution(1, shape), x), below), 10);
    }
    EXPECT_EQ(Lower(BetaDistribution(shape, shape), 0.5L), 0.5L);
    EXPECT_EQ(Quantile(BetaDistribution(shape, shape), 0.5L), 0.5L);
    EXPECT_EQ(Lower(FDistribution(shape, shape), 1), 0.5L);
    EXPECT_EQ(UpperQuantile(FDistribution(shape, shape), 0.5L), 1);
    EXPECT_EQ(Lower(BetaDistribution(shape, 7), 0.5L), Upper(BetaDistribution(7, shape), 0.5L));
    EXPECT_EQ(BetaDistribution(shape, 7).Pdf(0.5L), BetaDistribution(7, shape).Pdf(0.5L));
  }
  EXPECT_EQ(Quantile(BetaDistribution(1, 1), 0.3L), 0.3L);
  for (const std::uint32_t n : {7U, 1001U, 4'000'000'001U}) {
    EXPECT_EQ(Lower(BinomialDistribution(0.5L, n), n / 2), 0.5L);
    EXPECT_EQ(BinomialDistribution(0.5L, n).Pmf(3), BinomialDistribution(0.5L, n).Pmf(n - 3));
    EXPECT_EQ(Lower(BinomialDistribution(0.5L, n), 2), Upper(BinomialDistribution(0.5L, n), n - 3));
  }
}

}  // namespace qorvex
