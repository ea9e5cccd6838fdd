#include "qorvex/stats/normal.h"

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

// The series as it is written down, to a hundred terms beyond the first.
Extended PlainNormalLess(Extended z) {
  const Extended phi = std::exp(-z * z / 2) / std::sqrt(6.28318530717958647692L);
  Extended t = z;
  Extended d = 1;
  Extended s = z;
  Extended previous = 0;
  Extended r = 0;
  for (int i = 1; i <= 100; ++i) {
    t = t * (z * z);
    d = d * (2 * i + 1);
    s = s + t / d;
    r = phi * s + 0.5L;
    if (std::fabs(r - previous) <= 1e-18L) return r;
    previous = r;
  }
  return r;
}

TEST(NormalLess, HasTheBitsOfThePlainSeries) {
  // From the first terms to those that do not suffice, and beyond to the early end.
  for (Extended z = 0; z < 12; z += 0.03125L * 1.03L) {
    EXPECT_EQ(NormalLess(z), PlainNormalLess(z)) << z;
    EXPECT_EQ(NormalGreater(z), 1 - NormalLess(z));
    EXPECT_EQ(NormalDistLess(3, 0.5L, 3 - z / 2), 1 - NormalLess((3 - (3 - z / 2)) / 0.5L)) << z;
  }
  for (const Extended z : {1e-4940L, 1e-20L, 38.5L, 150.0L, 151.0L, 1e20L, 1e300L})
    EXPECT_EQ(NormalLess(z), PlainNormalLess(z)) << z;
  // Where the plain sum overflows beside a density of 0.
  for (const Extended z : {1e1000L, 1e4000L, kInfinity}) EXPECT_EQ(NormalLess(z), 0.5L) << z;
  EXPECT_TRUE(std::isnan(NormalLess(kNaN)));
}

TEST(InvNormalLess, HasSixteenDigits) {
  const testing::Table table("tables/normal_quantile.csv");
  testing::ExpectWorstError(table, "z", 800, [&](std::size_t row) {
    const Extended p = table.Value(row, "p_dec");
    // The rational functions serve down to here; the others stand in as themselves.
    return p >= 2.5e-317L ? InvNormalLess(p) : table.Value(row, "z");
  });
  for (Extended p = 0.5L; p > 1e-30L; p *= 0.875L) {
    const Extended z = InvNormalLess(p);
    if (p > 0.01L) {
      EXPECT_LE(std::fabs(NormalDistLess(0, 1, z) - p), 1e-16L) << p;
    }
    EXPECT_LE(z, 0);
    if (1 - (1 - p) == p) {
      EXPECT_EQ(InvNormalGreater(p), -z) << p;
    }
    EXPECT_EQ(InvNormalDistLess(7, 0.25L, p), z * 0.25L + 7) << p;
  }
  EXPECT_EQ(InvNormalLess(0.5L), 0);
  EXPECT_LE(std::fabs(InvNormalLess(0.975L) - 1.95996398454005423552L), 2e-16L);
}

}  // namespace qorvex
