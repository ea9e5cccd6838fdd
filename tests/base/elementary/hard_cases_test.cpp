#include "base/elementary/hard_cases.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace qorvex::testing {

// Arguments whose results are closest to a number or a midpoint, and those closest to multiples of
// pi/2. The distances in the table are what MPFR says today.
TEST(ElementaryHardCases, AreNearest) {
  const Table table("elementary/hard_cases.csv");
  Reference reference;
  std::map<std::string, int> tried;
  for (std::size_t row = 0; row < table.size(); ++row) {
    const auto [function, arguments] = HardCase(table, row);
    EXPECT_TRUE(IsSameNumber(function.ours(arguments), reference.Nearest(function, arguments)))
        << function.name << ' ' << Text(arguments);
    const std::string& kind = table.Text(row, "kind");
    if (kind != "reduction") {
      const Extended distance = reference.DistanceExponent(function, arguments, kind == "midpoint");
      EXPECT_LT(std::fabs(distance - table.Value(row, "distance")), 0.006L)
          << function.name << ' ' << Text(arguments);
    }
    ++tried[function.name];
  }
  for (const ElementaryFunction& function : ElementaryFunctions()) {
    if (function.is_nearest) {
      EXPECT_GT(tried[function.name], 100) << function.name;
    }
  }
}

}  // namespace qorvex::testing
