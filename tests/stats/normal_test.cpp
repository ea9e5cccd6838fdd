#include "qorvex/stats/normal.h"

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

TEST(NormalLess, AddsAtMostAHundredTerms) {
  // The series in arbitrary-precision arithmetic, with its test of convergence: from 8.5 on its
  // terms do not suffice, and from 9.95 on the first change already passes the test.
  for (const auto& [z, probability] : {
           std::pair(1e-4940L, 0.5L),
           {0.03125L, 0.512464917434377127302593L},
           {0.5L, 0.691462461274013103636365L},
           {1, 0.841344746068542948584111L},
           {1.75L, 0.959940843136182909560818L},
           {2.5L, 0.993790334674223864812494L},
           {4, 0.999968328758166879902677L},
           {6.5L, 0.999999999959839993875125L},
           {8.5L, 0.999999999999999990303197L},
           {9, 0.999999999999999679823314L},
           {9.5L, 0.999999999999802212090117L},
           {9.9L, 0.999999999981087767704798L},
           {9.95L, 0.500000000000000000866651L},
           {10.5L, 0.500000000000000000004074L},
           {151, 0.5L},
           {1e300L, 0.5L},
           {1e4000L, 0.5L},
           {kInfinity, 0.5L},
       }) {
    EXPECT_LE(std::fabs(NormalLess(z) - probability), 3e-19L) << z;
    EXPECT_EQ(NormalGreater(z), 1 - NormalLess(z));
    EXPECT_EQ(NormalDistLess(3, 0.5L, 3 - z / 2), 1 - NormalLess((3 - (3 - z / 2)) / 0.5L)) << z;
  }
  EXPECT_TRUE(std::isnan(NormalLess(kNaN)));
}

TEST(InvNormalLess, HasSixteenDigits) {
  const testing::Table table("tables/normal_quantile.csv");
  testing::ExpectWorstError(table, "z", 800, [&](std::size_t row) {
    const Extended p = table.Value(row, "p_dec");
    // The rational functions are not meant for smaller probabilities.
    return p >= 2.5e-317L ? InvNormalLess(p) : table.Value(row, "z");
  });
  for (Extended p = 0.5L; p > 1e-30L; p *= 0.875L) {
    const Extended z = InvNormalLess(p);
    if (p > 0.01L) {
      EXPECT_LE(std::fabs(NormalDistLess(0, 1, z) - p), 1e-16L) << p;
    }
    if (1 - (1 - p) == p) {
      EXPECT_EQ(InvNormalGreater(p), -z) << p;
    }
    EXPECT_EQ(InvNormalDistLess(7, 0.25L, p), z * 0.25L + 7) << p;
  }
  EXPECT_EQ(InvNormalLess(0.5L), 0);
  EXPECT_LE(std::fabs(ZAlpha(0.05L) - 1.64485362695147271486L), 2e-16L);
}

}  // namespace qorvex
