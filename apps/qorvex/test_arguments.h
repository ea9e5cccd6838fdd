#pragma once

/// @file
/// The options of the commands of `test`.

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "apps/common/hypothesis_tests.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/table_arguments.h"

namespace qorvex::apps {

/// The arguments of a command of `test`. A command adds those that it takes.
struct TestArguments : TestSettings {
  TableArguments table = {};
  /// The column of labels that split another one into samples.
  std::optional<std::string> by = {};
  /// A second column of counts.
  std::optional<std::string> proportions = {};
  OutputFormat output = {};

  /// Adds the options of a test. This object must outlive the parsing.
  void AddTo(CLI::App& command, const HypothesisTest& test);

 private:
  void AddAlternative(CLI::App& command);
  void AddNullValue(CLI::App& command, const NullValue& null_value);
  void AddInput(CLI::App& command, const HypothesisTest& test);
  // Those of the table, and --by.
  void AddSamples(CLI::App& command);
  void AddParameters(CLI::App& command);
};

}  // namespace qorvex::apps
