#include "qorvex/stats/normal.h"

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

TEST(InvNormalLess, HasSixteenDigits) {
  const testing::Table table("tables/normal_quantile.csv");
  testing::ExpectWorstError(table, "z", 800, [&](std::size_t row) {
    const Extended p = table.Value(row, "p_dec");
    // The rational functions are not meant for smaller probabilities.
    return p >= 2.5e-317L ? InvNormalLess(p) : table.Value(row, "z");
  });
  for (Extended p = 0.5L; p > 1e-30L; p *= 0.875L) {
    const Extended z = InvNormalLess(p);
    EXPECT_EQ(NormalGreater(-z), 1 - NormalLess(-z)) << p;
    EXPECT_EQ(NormalDistLess(3, 0.5L, 3 + z / 2), 1 - NormalLess((3 - (3 + z / 2)) / 0.5L)) << p;
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
