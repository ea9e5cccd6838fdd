#include "qorvex/stats/incomplete_gamma.h"

#include "qorvex/base/QorvexGlobals.h"
#include "qorvex/stats/chi_square.h"
#include "support/kept_tolerance.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

TEST(IncompleteGamma, AgreesWithTheTableForSeveralTolerances) {
  const testing::KeptTolerance kept;
  const testing::Table table("tables/incomplete_gamma.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    QorTolerance = table.Value(row, "tolerance");
    const Extended p = IncompleteGamma(table.Value(row, "a"), table.Value(row, "x"));
    EXPECT_LE(std::fabs(p - table.Value(row, "value")), table.Value(row, "limit"))
        << "row " << row + 1;
  }
  QorTolerance = 1e-6L;
  EXPECT_EQ(IncompleteGamma(2, 1e-6L), 0);
  EXPECT_GT(IncompleteGamma(2, 1.01e-6L), 0);
}

TEST(IncompleteGamma, EndsForEveryToleranceAndArgument) {
  const testing::KeptTolerance kept;
  const auto with_tolerance = [](Extended tolerance, Extended a, Extended x) {
    QorTolerance = tolerance;
    return IncompleteGamma(a, x);
  };
  constexpr Extended four_eps = 4 * std::numeric_limits<Extended>::epsilon();
  for (const Extended a : {1e-9L, 0.5L, 3.0L, 999.5L, 1000.0L}) {
    for (const Extended x : {1e-3L, 1.0L, 1.5L, 0.999L * a, 1.001L * a, 50 * a}) {
      const Extended p = with_tolerance(four_eps, a, x);
      for (const Extended tolerance : {0.0L, -1.0L, kNaN, -kInfinity})
        EXPECT_EQ(with_tolerance(tolerance, a, x), p) << a << ' ' << x << ' ' << tolerance;
      for (const Extended tolerance : {1e-30L, 1e-4940L})
        EXPECT_LE(std::fabs(with_tolerance(tolerance, a, x) - p), 2e-16L) << a << ' ' << x;
      EXPECT_LE(with_tolerance(kInfinity, a, x), 2) << "one term";
    }
  }
}

TEST(IncompleteGamma2, RoundsTheDegreesOfFreedom) {
  for (const auto& [a, df] : {std::pair(1.3L, 3U), {1.25L, 2U}, {1.75L, 4U}, {2.5L, 5U}})
    EXPECT_EQ(IncompleteGamma2(a, 2), Gamma(a) * ChiSquareGreater(4, df)) << a;
  // The integral of t exp(-t) from 3 to infinity.
  EXPECT_LE(std::fabs(IncompleteGamma2(2, 3) - 4 * std::exp(-3.0L)), 1e-15L);
}

}  // namespace qorvex
