// The classic binomial, hypergeometric and Poisson distributions.

#include <functional>

#include "qorvex/base/QorvexGlobals.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "support/kept_tolerance.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using Count = std::uint32_t;
using OfCount = std::function<Extended(Count)>;

constexpr Count kMost = 0xFFFFFFFF;

// A distribution with given parameters.
struct Distribution {
  Count greatest;   // the upper probability of this count is exactly 0
  OfCount formula;  // of the probability of a count
  OfCount eq, less, greater;
  std::function<Extended(Count, Count)> between;
};

template <class... Parameters>
Distribution Bind(Count greatest, OfCount formula, auto eq, auto less, auto greater, auto between,
                  Parameters... p) {
  return {greatest,
          formula,
          [=](Count k) { return eq(p..., k); },
          [=](Count k) { return less(p..., k); },
          [=](Count k) { return greater(p..., k); },
          [=](Count k1, Count k2) { return between(p..., k1, k2); }};
}

Extended Coefficient(Count n, Count k) {
  return n == 0 ? 1 : BinomialCoeff(n, k);
}

Distribution Binomial(Extended p, Count n) {
  const auto formula = [=](Count k) { return Coefficient(n, k) * XtoY(p, k) * XtoY(1 - p, n - k); };
  return Bind(n, formula, BinomialEq, BinomialLess, BinomialGreater, BinomialBetween, p, n);
}

Distribution HyperGeometric(Count pop, Count sample, Count successes) {
  const auto formula = [=](Count x) -> Extended {
    if (x > std::min(successes, sample) || sample - x > pop - successes) return 0;
    return Coefficient(successes, x) * Coefficient(pop - successes, sample - x) /
           Coefficient(pop, sample);
  };
  return Bind(std::min(sample, successes), formula, HyperGeometricEq, HyperGeometricLess,
              HyperGeometricGreater, HyperGeometricBetween, pop, sample, successes);
}

Distribution Poisson(Extended lambda) {
  const auto formula = [=](Count k) { return Exp(-lambda) * XtoY(lambda, k) / Factorial(k); };
  return Bind(kMost, formula, PoissonEq, PoissonLess, PoissonGreater, PoissonBetween, lambda);
}

// Sums add the probabilities in ascending order, and upper probabilities are 1 - lower ones.
void ExpectFormulas(const Distribution& d, Count k1, Count k2) {
  SCOPED_TRACE(::testing::Message() << k1 << ' ' << k2);
  const auto below = [&](Count end) {
    Extended sum = 0;
    for (Count k = 0; k < end; ++k) sum += d.formula(k);
    return sum;
  };
  EXPECT_EQ(d.eq(k1), d.formula(k1));
  EXPECT_EQ(d.less(k1), below(k1));
  EXPECT_EQ(d.greater(k1), k1 == d.greatest ? 0 : 1 - below(k1 + 1));
  const Extended between = below(k2) - below(k1 + 1);
  EXPECT_EQ(d.between(k1, k2), k1 == k2 ? d.formula(k1) : k1 < k2 ? between : -between);
}

TEST(DiscreteDistributions, AgreeWithTheirFormulasToTheLastBit) {
  testing::Engine engine(1);
  const auto below = [&](Count end) { return static_cast<Count>(engine() % end); };
  for (int i = 0; i < 200; ++i) {
    const Count n = below(i < 190 ? 70 : 900) + 1;
    const Extended p = static_cast<Extended>(engine()) * 0x1p-64L;
    SCOPED_TRACE(::testing::Message() << n << ' ' << p);
    ExpectFormulas(Binomial(p, n), below(n + 1), below(n + 1));
    const Count sample = below(n) + 1;
    const Count successes = below(n + 1);
    const Distribution d = HyperGeometric(n, sample, successes);
    SCOPED_TRACE(::testing::Message() << sample << ' ' << successes);
    ExpectFormulas(d, below(d.greatest + 1), below(d.greatest + 1));
  }
  for (const Extended lambda : {0.1L, 1.3L, 7.0L, 99.5L, 500.25L}) {
    SCOPED_TRACE(lambda);
    for (const auto& [k1, k2] :
         {std::pair(0U, 1U), {3U, 9U}, {9U, 3U}, {4U, 5U}, {6U, 6U}, {600U, 0U}})
      ExpectFormulas(Poisson(lambda), k1, k2);
  }
}

TEST(DiscreteDistributions, AgreeWithTheTables) {
  using Value = std::function<Extended(const char*)>;
  const auto count = [](Extended x) { return static_cast<Count>(x); };
  struct Reference {
    const char* file;
    std::function<Distribution(const Value&)> of_row;
    Extended eq_limit, less_limit;
  };
  const Reference references[] = {
      {"binomial", [&](auto& v) { return Binomial(v("p_dec"), count(v("n"))); }, 50, 15},
      {"hypergeometric",
       [&](auto& v) { return HyperGeometric(count(v("N")), count(v("n")), count(v("K"))); }, 50,
       50},
      {"poisson", [&](auto& v) { return Poisson(v("lambda_dec")); }, 15, 15},
  };
  for (const Reference& reference : references) {
    const testing::Table table("tables/" + std::string(reference.file) + ".csv");
    const auto expect_worst = [&](const char* column, Extended limit, auto routine) {
      testing::ExpectWorstError(table, column, limit, [&](std::size_t row) {
        const auto value = [&](const char* name) { return table.Value(row, name); };
        try {
          return (reference.of_row(value).*routine)(count(value("k")));
        } catch (const EMathError& error) {
          EXPECT_EQ(error.message_id(), rsBinomOverflowed);
          EXPECT_EQ(value("N"), 20000);
          return value(column);
        }
      });
    };
    expect_worst("pmf", reference.eq_limit, &Distribution::eq);
    expect_worst("cdf_lt", reference.less_limit, &Distribution::less);
  }
}

TEST(DiscreteDistributions, SumsAndEqualCounts) {
  // The sum starts at the smallest possible count, kMost - 5, instead of at 0.
  EXPECT_EQ(HyperGeometricLess(kMost, kMost - 2, kMost - 3, kMost - 4),
            HyperGeometricEq(kMost, kMost - 2, kMost - 3, kMost - 5));
  const testing::KeptTolerance kept;
  QorTolerance = 0.2L;
  EXPECT_EQ(PoissonBetween(7, 5, 6), PoissonEq(7, 5)) << "counts are compared by SameFloat";
}

// Reference values: logarithms of the exact probabilities, to 20 digits.
TEST(DiscreteDistributions, PoissonProbabilitiesWhoseFactorsLeaveTheRange) {
  struct Case {
    Extended lambda;
    Count k;
    Extended ln_p;
  };
  for (const auto& [lambda, k, ln_p] : {
           Case{1000, 1754, -236.22447311840725757L},
           {700, 1740, -549.02430608942460696L},
           {11400, 1754, -6367.6666477460183491L},
           {12000, 1700, -6982.3649014839232504L},
           {12000, 1200, -8041.3619348026807347L},
           {1e-100L, 40, -9320.6610116909401315L},
           {1e-3000L, 1, -6907.7552789821370521L},
       }) {
    EXPECT_LE(std::fabs(std::log(PoissonEq(lambda, k)) - ln_p), 1e-14L * std::fabs(ln_p))
        << lambda << ' ' << k;
  }
}

TEST(DiscreteDistributions, FillTables) {
  TQorFloatVector probs = {7};
  const auto expect_table = [&](const Distribution& d, std::size_t length) {
    ASSERT_EQ(probs.size(), length);
    for (Count k = 0; k < length; ++k) EXPECT_EQ(probs[k], d.formula(k)) << k;
  };
  BinomialPDFValues(67, 0.3L, probs);
  expect_table(Binomial(0.3L, 67), 68);
  for (const auto& [pop, sample, successes] :
       {std::tuple(60U, 20U, 30U), {60U, 50U, 20U}, {60U, 7U, 3U}, {9U, 9U, 9U}, {5U, 3U, 0U}}) {
    HyperGeometricPDFValues(pop, sample, successes, probs);
    expect_table(HyperGeometric(pop, sample, successes), sample + 1);
  }

  struct Run {
    std::int32_t n;
    Extended lambda;
    std::int32_t first, last;
  };
  for (const auto& [n, lambda, first, last] : {Run{4, 1.3L, 0, 3},
                                               {1, 7.9L, 7, 7},
                                               {2, 7.9L, 7, 8},
                                               {5, 7, 5, 9},
                                               {9, 0.5L, 0, 4},
                                               {6, 1751.5L, 1749, 1754}}) {
    TQorLIntVector ks;
    PoissonPDFValues(n, lambda, ks, probs);
    ASSERT_EQ(ks.High(), last - first);
    ASSERT_EQ(probs.High(), last - first);
    for (std::size_t i = 0; i < ks.size(); ++i) {
      EXPECT_EQ(ks[i], first + static_cast<std::int32_t>(i));
      EXPECT_EQ(probs[i], PoissonEq(lambda, static_cast<Count>(ks[i]))) << ks[i];
    }
  }
}

}  // namespace qorvex
