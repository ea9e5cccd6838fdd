#include "qorvex/stats/poisson.h"

#include "qorvex/base/elementary.h"
#include "qorvex/stats/combinatorics.h"
#include "support/kept_tolerance.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

Extended PlainEq(Extended lambda, std::uint32_t k) {
  return std::exp(-lambda) * XtoY(lambda, k) / Factorial(k);
}

Extended PlainLess(Extended lambda, std::uint32_t k) {
  Extended sum = 0;
  for (std::uint32_t i = 0; i < k; ++i) sum += PlainEq(lambda, i);
  return sum;
}

TEST(Poisson, AgreesWithTheTable) {
  const testing::Table table("tables/poisson.csv");
  const auto at = [&](auto routine) {
    return [&table, routine](std::size_t row) {
      return routine(table.Value(row, "lambda_dec"),
                     static_cast<std::uint32_t>(table.Value(row, "k")));
    };
  };
  testing::ExpectWorstError(table, "pmf", 15, at(PoissonEq));
  testing::ExpectWorstError(table, "cdf_lt", 15, at(PoissonLess));
}

TEST(Poisson, AddsTheTermsInAscendingOrder) {
  for (const Extended lambda : {0.1L, 1.3L, 7.0L, 99.5L, 500.25L}) {
    for (const auto& [k1, k2] : {std::pair(0U, 1U), {3U, 9U}, {9U, 3U}, {4U, 5U}, {600U, 0U}}) {
      SCOPED_TRACE(::testing::Message() << lambda << ' ' << k1 << ' ' << k2);
      EXPECT_EQ(PoissonEq(lambda, k1), PlainEq(lambda, k1));
      EXPECT_EQ(PoissonLess(lambda, k1), PlainLess(lambda, k1));
      EXPECT_EQ(PoissonGreater(lambda, k1), 1 - PlainLess(lambda, k1 + 1));
      const Extended between = PlainLess(lambda, k2) - PlainLess(lambda, k1 + 1);
      EXPECT_EQ(PoissonBetween(lambda, k1, k2), k1 < k2 ? between : -between);
      EXPECT_EQ(PoissonBetween(lambda, k1, k1), PlainEq(lambda, k1));
    }
  }
  const testing::KeptTolerance kept;
  QorTolerance = 0.2L;
  EXPECT_EQ(PoissonBetween(7, 5, 6), PlainEq(7, 5));
}

// By their logarithms, from Stirling's series.
TEST(Poisson, IsFiniteWhereItsFactorsAreNot) {
  const auto log_factorial = [](Extended n) {
    return n * std::log(n) - n + std::log(2 * std::acos(-1.0L) * n) / 2 + 1 / (12 * n) -
           1 / (360 * n * n * n);
  };
  for (const auto& [lambda, k] : {std::pair(1000.0L, 1754U),
                                  {700.0L, 1740U},
                                  {11400.0L, 1754U},
                                  {12000.0L, 1700U},
                                  {12000.0L, 1200U},
                                  {1e-100L, 40U},
                                  {1e-3000L, 1U}}) {
    const Extended log_p = k * std::log(lambda) - lambda - (k < 2 ? 0 : log_factorial(k));
    EXPECT_LE(std::fabs(std::log(PoissonEq(lambda, k)) - log_p), 1e-14L * std::fabs(log_p))
        << lambda << ' ' << k;
  }
  EXPECT_EQ(PoissonEq(1e-3000L, 2), 0);
  EXPECT_EQ(PoissonEq(1e9L, 5), 0);
  for (const std::uint32_t k : {0U, 3U}) EXPECT_EQ(PoissonEq(kInfinity, k), 0);
  EXPECT_EQ(PoissonLess(kInfinity, 1755), 0);
}

TEST(Poisson, FillsATableAboutTheMean) {
  struct Case {
    std::int32_t n;
    Extended lambda;
    std::int32_t first, last;
  };
  for (const auto& [n, lambda, first, last] : {Case{4, 1.3L, 0, 3},
                                               {1, 7.9L, 7, 7},
                                               {2, 7.9L, 7, 8},
                                               {5, 7, 5, 9},
                                               {9, 0.5L, 0, 4},
                                               {6, 1751.5L, 1749, 1754}}) {
    TQorLIntVector ks;
    TQorFloatVector probs;
    PoissonPDFValues(n, lambda, ks, probs);
    ASSERT_EQ(ks.High(), last - first);
    ASSERT_EQ(probs.High(), last - first);
    for (std::size_t i = 0; i < ks.size(); ++i) {
      EXPECT_EQ(ks[i], first + static_cast<std::int32_t>(i));
      EXPECT_EQ(probs[i], PoissonEq(lambda, static_cast<std::uint32_t>(ks[i]))) << ks[i];
    }
  }
}

TEST(Poisson, RefusesBadParametersAndCountsWhoseFactorialOverflows) {
  for (const Extended lambda : {0.0L, -1.0L, -kInfinity}) {
    EXPECT_MATH_ERROR(PoissonEq(lambda, 1), rsPoissonInvalid);
    EXPECT_MATH_ERROR(PoissonLess(lambda, 0), rsPoissonInvalid);
    EXPECT_MATH_ERROR(PoissonGreater(lambda, 5000), rsPoissonInvalid);
    EXPECT_MATH_ERROR(PoissonBetween(lambda, 1, 2), rsPoissonInvalid);
  }
  const std::uint32_t most = 0xFFFFFFFF;
  EXPECT_EQ(PoissonLess(2, 0), 0);
  EXPECT_LE(std::fabs(PoissonLess(2, 1755) - 1), 1e-18L);
  EXPECT_MATH_ERROR(PoissonEq(2, 1755), rsFactOverflow);
  EXPECT_MATH_ERROR(PoissonLess(2, 1756), rsFactOverflow);
  EXPECT_MATH_ERROR(PoissonLess(kNaN, most), rsFactOverflow);
  EXPECT_MATH_ERROR(PoissonGreater(2, most), rsFactOverflow);
  EXPECT_MATH_ERROR(PoissonBetween(2, most, 0), rsFactOverflow);
  EXPECT_TRUE(std::isnan(PoissonEq(kNaN, 0)));
  EXPECT_TRUE(std::isnan(PoissonGreater(kNaN, 1754)));

  struct Case {
    std::int32_t n;
    Extended lambda;
    MessageId id;
  };
  for (const auto& [n, lambda, id] : {Case{0, 1, rsPoissonInvalid},
                                      {-5, 1, rsPoissonInvalid},
                                      {5, 0, rsPoissonInvalid},
                                      {5, kNaN, rsPoissonInvalid},
                                      {1, 1755, rsFactOverflow},
                                      {0x7FFFFFFF, 1, rsFactOverflow},
                                      {7, 1e4000L, rsFactOverflow},
                                      {7, kInfinity, rsFactOverflow}}) {
    TQorLIntVector ks = {1};
    TQorFloatVector probs = {1};
    EXPECT_MATH_ERROR(PoissonPDFValues(n, lambda, ks, probs), id);
    EXPECT_TRUE(ks.empty() && probs.empty());
  }
}

}  // namespace qorvex
