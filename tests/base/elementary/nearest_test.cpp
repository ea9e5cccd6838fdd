#include <gtest/gtest.h>

#include "base/elementary/elementary_functions.h"
#include "support/environment.h"

namespace qorvex::testing {

class Elementary : public ::testing::TestWithParam<const char*> {};

TEST_P(Elementary, GivesTheNearestNumbers) {
  const ElementaryFunction& function = FunctionNamed(GetParam());
  const int cases = FromEnvironment("QORVEX_ELEMENTARY_CASES", 20'000);
  const auto of_region = static_cast<std::uint64_t>(cases) / function.regions.size();
  std::uint64_t seed = 2026;
  for (const ArgumentRegion& region : function.regions) {
    const RegionOutcome outcome = Try(function, region, of_region, ++seed);
    EXPECT_TRUE(function.IsKept(region, outcome))
        << region.name << ": " << outcome.not_nearest << " of " << outcome.tried
        << " are not the nearest, by up to " << outcome.largest_error << " units at "
        << Text(outcome.worst);
  }
}

std::vector<const char*> Names() {
  std::vector<const char*> names;
  for (const ElementaryFunction& function : ElementaryFunctions()) names.push_back(function.name);
  return names;
}
INSTANTIATE_TEST_SUITE_P(Functions, Elementary, ::testing::ValuesIn(Names()),
                         [](const auto& name) { return std::string(name.param); });

}  // namespace qorvex::testing
