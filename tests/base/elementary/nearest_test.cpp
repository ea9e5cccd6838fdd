#include <gtest/gtest.h>

#include "base/elementary/elementary_functions.h"
#include "support/environment.h"

namespace qorvex::testing {

class Elementary : public ::testing::TestWithParam<ElementaryFunction> {};

TEST_P(Elementary, GivesTheNearestNumbers) {
  const ElementaryFunction& function = GetParam();
  const int cases = FromEnvironment("QORVEX_ELEMENTARY_CASES", 20'000);
  const auto regions = static_cast<int>(function.regions.size());
  for (int i = 0; i < regions; ++i) {
    const ArgumentRegion& region = function.regions[static_cast<std::size_t>(i)];
    const RegionOutcome outcome = Try(function, region, static_cast<std::uint64_t>(cases / regions),
                                      2026U + static_cast<unsigned>(i));
    EXPECT_TRUE(function.is_nearest ? outcome.not_nearest == 0
                                    : outcome.largest_error <= region.allowed)
        << region.name << ": " << outcome.not_nearest << " of " << outcome.tried
        << " are not the nearest, by up to " << outcome.largest_error << " units at "
        << Text(outcome.worst);
  }
}
INSTANTIATE_TEST_SUITE_P(Functions, Elementary,
                         ::testing::ValuesIn(ElementaryFunctions().begin(),
                                             ElementaryFunctions().end()),
                         [](const auto& function) { return function.param.name; });

}  // namespace qorvex::testing
