#include "qorvex/stats/binomial.h"

#include "qorvex/base/elementary.h"
#include "stats/plain_coefficient.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

Extended PlainEq(Extended p, std::uint32_t n, std::uint32_t k) {
  return testing::PlainCoefficient(n, k) * XtoY(p, k) * XtoY(1 - p, n - k);
}

Extended PlainLess(Extended p, std::uint32_t n, std::uint32_t k) {
  Extended sum = 0;
  for (std::uint32_t i = 0; i < k; ++i) sum += PlainEq(p, n, i);
  return sum;
}

TEST(Binomial, AgreesWithTheTable) {
  const testing::Table table("tables/binomial.csv");
  const auto at = [&](auto routine) {
    return [&table, routine](std::size_t row) {
      return routine(Str2Float(table.Text(row, "p_dec")),
                     static_cast<std::uint32_t>(table.Value(row, "n")),
                     static_cast<std::uint32_t>(table.Value(row, "k")));
    };
  };
  testing::ExpectWorstError(table, "pmf", 50, at(BinomialEq));
  testing::ExpectWorstError(table, "cdf_lt", 15, at(BinomialLess));
}

TEST(Binomial, AddsTheTermsInAscendingOrder) {
  testing::Engine engine(1);
  for (int i = 0; i < 200; ++i) {
    const auto n = static_cast<std::uint32_t>(engine() % (i < 190 ? 70 : 900)) + 1;
    const auto k1 = static_cast<std::uint32_t>(engine() % (n + 1));
    const auto k2 = static_cast<std::uint32_t>(engine() % (n + 1));
    const Extended p = static_cast<Extended>(engine()) * 0x1p-64L;
    EXPECT_EQ(BinomialEq(p, n, k1), PlainEq(p, n, k1)) << p << ' ' << n << ' ' << k1;
    EXPECT_EQ(BinomialLess(p, n, k1), PlainLess(p, n, k1)) << p << ' ' << n << ' ' << k1;
    EXPECT_EQ(BinomialGreater(p, n, k1), k1 == n ? 0 : 1 - PlainLess(p, n, k1 + 1));
    const Extended between = PlainLess(p, n, k2) - PlainLess(p, n, k1 + 1);
    EXPECT_EQ(BinomialBetween(p, n, k1, k2), k1 == k2  ? PlainEq(p, n, k1)
                                             : k1 < k2 ? between
                                                       : -between)
        << p << ' ' << n << ' ' << k1 << ' ' << k2;
  }
}

TEST(Binomial, CountsAtTheEdges) {
  EXPECT_EQ(BinomialLess(0.5L, 4, 0), 0);
  EXPECT_EQ(BinomialGreater(0.3L, 4, 4), 0);
  EXPECT_EQ(BinomialEq(0, 9, 0), 1);
  EXPECT_EQ(BinomialEq(1, 9, 9), 1);
  EXPECT_EQ(BinomialBetween(0.5L, 4, 1, 3), 0.375L);
  EXPECT_EQ(BinomialBetween(0.5L, 4, 3, 1), 0.875L);  // both ends in
  EXPECT_EQ(BinomialBetween(0.5L, 4, 4, 0), 1);
  EXPECT_EQ(BinomialBetween(0.5L, 4, 2, 3), 0);
  EXPECT_EQ(BinomialEq(0x1p-32L, 0xFFFFFFFF, 0xFFFFFFFF), 0);
  EXPECT_EQ(BinomialGreater(0.5L, 0xFFFFFFFF, 0xFFFFFFFF), 0);
}

TEST(Binomial, FillsATableAndReleasesItFirst) {
  TQorFloatVector probs;
  BinomialPDFValues(67, 0.3L, probs);
  ASSERT_EQ(probs.size(), 68U);
  for (std::uint32_t k = 0; k <= 67; ++k) EXPECT_EQ(probs[k], PlainEq(0.3L, 67, k)) << k;

  for (const auto& [n, p] : {std::pair(0, 0.5L), std::pair(-3, 0.5L), std::pair(3, kNaN)}) {
    probs = {1};
    EXPECT_MATH_ERROR(BinomialPDFValues(n, p, probs), rsBinomDistInvalid);
    EXPECT_TRUE(probs.empty());
  }
  EXPECT_MATH_ERROR(BinomialPDFValues(0x7FFFFFFF, 0.5L, probs), rsBinomOverflowed);
}

TEST(Binomial, RefusesBadParametersAndCoefficientsThatOverflow) {
  struct Case {
    Extended p;
    std::uint32_t n, k;
    MessageId id;
  };
  for (const auto& [p, n, k, id] : {
           Case{0.5L, 0, 0, rsBinomDistInvalid},
           {0.5L, 3, 4, rsBinomDistInvalid},
           {-0x1p-70L, 3, 1, rsBinomDistInvalid},
           {1 + 0x1p-63L, 3, 1, rsBinomDistInvalid},
           {kNaN, 3, 1, rsBinomDistInvalid},
           {0.5L, 20000, 10000, rsBinomOverflowed},
           {0.5L, 0xFFFFFFFF, 0x7FFFFFFF, rsBinomOverflowed},
       }) {
    EXPECT_MATH_ERROR(BinomialEq(p, n, k), id);
    EXPECT_MATH_ERROR(BinomialLess(p, n, k), id);
    EXPECT_MATH_ERROR(BinomialGreater(p, n, k), id);
    EXPECT_MATH_ERROR(BinomialBetween(p, n, k, 0), id);
    EXPECT_MATH_ERROR(BinomialBetween(p, n, 0, k), id);
  }
}

}  // namespace qorvex
