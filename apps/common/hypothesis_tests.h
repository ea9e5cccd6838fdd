#pragma once

/// @file
/// The catalogue of tests of hypotheses for both programs. A test is added with one entry.

#include <cstdint>
#include <span>
#include <vector>

#include "apps/common/distributions.h"
#include "apps/common/number_parameter.h"
#include "apps/common/number_sample.h"
#include "apps/common/test_report.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::apps {

/// What a test takes.
enum class TestInput : std::uint8_t {
  kSample,          ///< one sample
  kTwoSamples,      ///< two samples
  kSeveralSamples,  ///< two samples or more
  kPairs,           ///< two samples of the same length, x and y
  kCounts,          ///< a sample of counts, perhaps with a second one of their proportions
  kCountTable,      ///< samples of counts, which are the columns of a table
  kTrials,          ///< no sample: the counts in the settings
};

/// The choices of a test. It ignores those that it does not take.
struct TestSettings {
  Alternative alternative = Alternative::kTwoSided;
  /// What the null hypothesis says.
  WrittenNumber hypothesis = {};
  WrittenNumber confidence = {"0.95", 0.95L};
  /// A distribution with its parameters.
  const Family* family = nullptr;
  std::vector<Extended> parameters = {};
  std::uint32_t fitted_parameters = 0;
  std::uint32_t successes = 0;
  std::uint32_t trials = 0;
  bool yates = false;

  /// 1 - confidence.
  [[nodiscard]] Extended Significance() const;
};

/// The number of a null hypothesis: an option of the command.
struct NullValue {
  /// Null if the hypothesis has no number.
  const char* option = nullptr;
  const char* description = nullptr;
  NumberKind kind = NumberKind::kReal;
  /// Null if the option is required.
  const char* default_text = nullptr;
};

/// An entry of the catalogue.
struct HypothesisTest {
  const char* name;
  /// Other names of its command.
  std::vector<const char*> aliases = {};
  const char* summary;
  TestInput input;
  NullValue null_value = {};
  bool has_alternative = true;
  /// Whether it takes a continuous distribution.
  bool takes_family = false;
  /// EMathError as the routine of the library raises it; see WhyNoResult.
  TestReport (*run)(std::span<const NumberSample> samples, const TestSettings& settings);
};

/// The tests in the order of --help.
[[nodiscard]] std::span<const HypothesisTest> HypothesisTests();

}  // namespace qorvex::apps
