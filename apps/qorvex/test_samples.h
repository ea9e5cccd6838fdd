#pragma once

/// @file
/// The columns that the commands of `test` read.

#include <vector>

#include "apps/common/number_sample.h"
#include "apps/qorvex/test_arguments.h"

namespace qorvex::apps {

/// The samples of each test that a command runs. Errors name the samples that do not suit the test.
[[nodiscard]] std::vector<std::vector<NumberSample>> ReadSamples(const HypothesisTest& test,
                                                                 const TestArguments& arguments);

}  // namespace qorvex::apps
