#pragma once

/// @file
/// The options of the commands of `test`.

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "apps/qorvex/output_format.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/test_report.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::apps {

/// The arguments of a command of `test`. A command adds those that it takes.
struct TestArguments {
  TableArguments table = {};
  /// The column of labels that split another one into samples.
  std::optional<std::string> by = {};
  /// A second column of counts.
  std::optional<std::string> proportions = {};
  Alternative alternative = Alternative::kTwoSided;
  /// What the null hypothesis says.
  WrittenNumber hypothesis = {};
  WrittenNumber confidence = {"0.95", 0.95L};
  /// Of a distribution.
  std::vector<Extended> parameters = {};
  std::uint32_t fitted_parameters = 0;
  std::uint32_t successes = 0;
  std::uint32_t trials = 0;
  bool yates = false;
  OutputFormat output = {};

  /// 1 - confidence.
  [[nodiscard]] Extended Significance() const;

  /// @{
  /// Add options. This object must outlive the parsing. The option of a hypothesis without a
  /// default is required.
  void AddAlternative(CLI::App& command);
  void AddHypothesis(CLI::App& command, const char* option, const char* description,
                     NumberKind kind, const char* default_text);
  /// Those of the table, and --by.
  void AddSamples(CLI::App& command);
  /// @}
};

/// A command of `test`.
struct TestCommand {
  const char* name;
  const char* summary;
  std::function<void(CLI::App& command, TestArguments& arguments)> add_options;
  std::function<std::vector<TestReport>(const TestArguments& arguments)> run;
  bool reads_table = true;
};

/// Adds a command.
void AddTest(CLI::App& parent, const TestCommand& test);

/// @{
/// Add the commands of a topic.
void AddMeanTests(CLI::App& test);
void AddVarianceTests(CLI::App& test);
void AddCountTests(CLI::App& test);
void AddDistributionTests(CLI::App& test);
void AddRankTests(CLI::App& test);
/// @}

}  // namespace qorvex::apps
