#pragma once

/// @file
/// Figures, intervals and tests in JSON documents.

#include <cstddef>
#include <optional>
#include <string>

#include "apps/qorvex/json_writer.h"
#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::apps {

/// The number and the name of a column: the keys column and name. The name is null if it is empty.
void WriteColumnKeys(JsonWriter& json, std::size_t number, const std::string& name);

/// Two ends, or null for none and for NaN.
void WriteInterval(JsonWriter& json, const std::optional<Interval<Extended>>& interval);

/// The keys and values of a test: statistic, degrees of freedom, p and its logarithm, and where p
/// comes from; null for what the test does not have.
void WriteTestResult(JsonWriter& json, const std::optional<TestResult>& result);

}  // namespace qorvex::apps
