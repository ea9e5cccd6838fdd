#include "qorvex/stats/combinatorics.h"

#include "stats/plain_coefficient.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

constexpr std::uint32_t kMost = 0xFFFFFFFF;

TEST(Combinatorics, AgreesWithTheTable) {
  const testing::Table table("tables/combinatorics.csv");
  testing::ExpectWorstError(table, "value", 20, [&](std::size_t row) {
    const std::string& what = table.Text(row, "what");
    const auto n = static_cast<std::uint32_t>(table.Value(row, "n"));
    if (what == "factorial") return Factorial(n);
    const auto k = static_cast<std::uint32_t>(table.Value(row, "k"));
    const Extended expected = table.Value(row, "value");
    const Extended value = what == "binomial" ? BinomialCoeff(n, k) : Permutation(n, k);
    if (expected * k < 0x1p61L) {
      EXPECT_EQ(value, expected) << what << ' ' << n << ' ' << k;
    }
    return value;
  });
}

TEST(Combinatorics, KeepsTheOrderOfProductsAndQuotients) {
  for (const std::uint32_t n : {1U, 2U, 9U, 66U, 67U, 200U, 1001U, 16391U, 123456789U, kMost}) {
    for (const std::uint32_t k : {0U, 1U, 2U, 3U, 7U, 33U, 100U, 500U, 8195U}) {
      if (k > n || (n > 20000 && k > 500)) continue;
      EXPECT_EQ(BinomialCoeff(n, k), testing::PlainCoefficient(n, k)) << n << ' ' << k;
      EXPECT_EQ(BinomialCoeff(n, n - k), BinomialCoeff(n, k)) << n << ' ' << k;
    }
  }
}

TEST(Combinatorics, CountsAtTheEdges) {
  EXPECT_EQ(Factorial(0), 1);
  EXPECT_EQ(Factorial(1), 1);
  EXPECT_EQ(Permutation(5, 2), 20);
  EXPECT_EQ(Permutation(5, 0), 1);
  EXPECT_EQ(Permutation(0, 0), 0);
  EXPECT_EQ(BinomialCoeff(0, 0), 0);
  EXPECT_EQ(BinomialCoeff(5, 5), 1);
  EXPECT_EQ(Permutation(20, 20), Factorial(20));
  EXPECT_EQ(Permutation(kMost, 1), kMost);
  EXPECT_EQ(BinomialCoeff(kMost, kMost - 1), kMost);
}

TEST(Combinatorics, RefusesWhatIsTooLargeWithoutCountingThere) {
  EXPECT_MATH_ERROR(Factorial(1755), rsFactOverflow);
  EXPECT_MATH_ERROR(Factorial(kMost), rsFactOverflow);
  EXPECT_MATH_ERROR(Permutation(2, 3), rsPermInvalid);
  EXPECT_MATH_ERROR(Permutation(0, 1), rsPermInvalid);
  EXPECT_MATH_ERROR(Permutation(1755, 1755), rsPermOverflowed);
  EXPECT_MATH_ERROR(Permutation(1000000, 900), rsPermOverflowed);
  EXPECT_MATH_ERROR(Permutation(kMost, kMost), rsPermOverflowed);
  EXPECT_MATH_ERROR(BinomialCoeff(2, 3), rsBinomInvalid);
  EXPECT_MATH_ERROR(BinomialCoeff(0, 1), rsBinomInvalid);
  EXPECT_MATH_ERROR(BinomialCoeff(16392, 8196), rsBinomOverflowed);
  EXPECT_MATH_ERROR(BinomialCoeff(kMost, 800), rsBinomOverflowed);
  EXPECT_MATH_ERROR(BinomialCoeff(kMost, kMost / 2), rsBinomOverflowed);
}

}  // namespace qorvex
