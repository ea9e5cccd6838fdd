#include "qorvex/stats/hypergeometric.h"

#include "stats/plain_coefficient.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using Count = std::uint32_t;

Extended PlainEq(Count pop_size, Count sample_size, Count successes, Count x) {
  if (x > std::min(successes, sample_size) || sample_size - x > pop_size - successes) return 0;
  return testing::PlainCoefficient(successes, x) *
         testing::PlainCoefficient(pop_size - successes, sample_size - x) /
         testing::PlainCoefficient(pop_size, sample_size);
}

Extended PlainLess(Count pop_size, Count sample_size, Count successes, Count x) {
  Extended sum = 0;
  for (Count i = 0; i < x; ++i) sum += PlainEq(pop_size, sample_size, successes, i);
  return sum;
}

TEST(HyperGeometric, AgreesWithTheTable) {
  const testing::Table table("tables/hypergeometric.csv");
  const auto expect_worst = [&](const char* column, Extended limit, auto routine) {
    testing::ExpectWorstError(table, column, limit, [&](std::size_t row) {
      const auto count = [&](const char* name) {
        return static_cast<Count>(table.Value(row, name));
      };
      if (count("N") == 20000) {
        EXPECT_MATH_ERROR(routine(20000, 10000, 10000, count("k")), rsBinomOverflowed);
        return table.Value(row, column);
      }
      return routine(count("N"), count("n"), count("K"), count("k"));
    });
  };
  expect_worst("pmf", 50, HyperGeometricEq);
  expect_worst("cdf_lt", 50, HyperGeometricLess);
}

TEST(HyperGeometric, AddsTheTermsInAscendingOrder) {
  testing::Engine engine(1);
  for (int i = 0; i < 200; ++i) {
    const auto below = [&](Count end) { return static_cast<Count>(engine() % end); };
    const Count pop = below(i < 190 ? 70 : 900) + 1;
    const Count sample = below(pop) + 1;
    const Count successes = below(pop + 1);
    const Count top = std::min(sample, successes);
    const Count x1 = below(top + 1);
    const Count x2 = below(top + 1);
    SCOPED_TRACE(::testing::Message()
                 << pop << ' ' << sample << ' ' << successes << ' ' << x1 << ' ' << x2);
    const auto less = [&](Count x) { return PlainLess(pop, sample, successes, x); };
    const Extended eq = PlainEq(pop, sample, successes, x1);
    EXPECT_EQ(HyperGeometricEq(pop, sample, successes, x1), eq);
    EXPECT_EQ(HyperGeometricLess(pop, sample, successes, x1), less(x1));
    EXPECT_EQ(HyperGeometricGreater(pop, sample, successes, x1), x1 == top ? 0 : 1 - less(x1 + 1));
    const Extended between = less(x2) - less(x1 + 1);
    EXPECT_EQ(HyperGeometricBetween(pop, sample, successes, x1, x2), x1 == x2  ? eq
                                                                     : x1 < x2 ? between
                                                                               : -between);
    TQorFloatVector probs = {1};
    HyperGeometricPDFValues(pop, sample, successes, probs);
    ASSERT_EQ(probs.size(), sample + 1);
    for (Count x = 0; x <= sample; ++x) EXPECT_EQ(probs[x], PlainEq(pop, sample, successes, x));
  }
}

TEST(HyperGeometric, GivesZeroForImpossibleCountsAndOneForCertainOnes) {
  EXPECT_EQ(HyperGeometricEq(10, 3, 4, 5), 0);
  EXPECT_EQ(HyperGeometricEq(10, 8, 4, 1), 0);  // only six failures for the other seven
  EXPECT_EQ(HyperGeometricEq(10, 3, 0, 0), 1);
  EXPECT_EQ(HyperGeometricEq(10, 3, 10, 3), 1);
  EXPECT_EQ(HyperGeometricEq(10, 10, 4, 4), 1);
  EXPECT_EQ(HyperGeometricLess(10, 8, 4, 2), 0);
  EXPECT_EQ(HyperGeometricGreater(10, 3, 4, 3), 0);
  EXPECT_EQ(HyperGeometricBetween(10, 8, 4, 4, 0), 1);
  const Count most = 0xFFFFFFFF;
  EXPECT_EQ(HyperGeometricEq(most, most / 2, 2, 3), 0);
  EXPECT_EQ(HyperGeometricEq(most, most, most, most), 1);
  // Counts up to most - 6 are impossible, and no step is spent on them.
  EXPECT_EQ(HyperGeometricLess(most, most - 2, most - 3, most - 4),
            HyperGeometricEq(most, most - 2, most - 3, most - 5));
}

TEST(HyperGeometric, RefusesBadParametersAndCoefficientsThatOverflow) {
  const Count most = 0xFFFFFFFF;
  TQorFloatVector probs;
  struct Case {
    Count pop_size, sample_size, successes;
    MessageId id;
  };
  for (const auto& [pop, sample, successes, id] : {
           Case{0, 0, 0, rsHyperGeometricInvalid},
           {5, 0, 2, rsHyperGeometricInvalid},
           {5, 6, 2, rsHyperGeometricInvalid},
           {5, 2, 6, rsHyperGeometricInvalid},
           {20000, 10000, 5, rsBinomOverflowed},
           {most, most / 2, most / 2, rsBinomOverflowed},
       }) {
    EXPECT_MATH_ERROR(HyperGeometricEq(pop, sample, successes, 1), id);
    EXPECT_MATH_ERROR(HyperGeometricLess(pop, sample, successes, 1), id);
    EXPECT_MATH_ERROR(HyperGeometricGreater(pop, sample, successes, 1), id);
    EXPECT_MATH_ERROR(HyperGeometricBetween(pop, sample, successes, 0, 2), id);
    probs = {1};
    EXPECT_MATH_ERROR(HyperGeometricPDFValues(pop, sample, successes, probs), id);
    EXPECT_TRUE(probs.empty());
  }
  for (const auto& [sample, successes] : {std::pair<Count, Count>(3, 4), {4, 3}}) {
    EXPECT_MATH_ERROR(HyperGeometricLess(10, sample, successes, 4), rsHyperGeometricInvalid);
    EXPECT_MATH_ERROR(HyperGeometricGreater(10, sample, successes, 4), rsHyperGeometricInvalid);
    EXPECT_MATH_ERROR(HyperGeometricBetween(10, sample, successes, 4, 1), rsHyperGeometricInvalid);
  }
}

}  // namespace qorvex
