#pragma once

/// @file
/// The options of `describe`.

#include <CLI/CLI.hpp>
#include <optional>
#include <vector>

#include "apps/qorvex/describe_figures.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/table_arguments.h"
#include "qorvex/stats/exact/weighted.h"
#include "qorvex/stats/quantiles.h"

namespace qorvex::apps {

/// What to report on the columns of a table.
struct DescribeOptions {
  TableArguments table = {};
  bool population = false;
  bool classic = false;
  OutputFormat output = {};
  unsigned threads = 1;
  std::vector<WrittenNumber> quantiles = {};
  /// Empty for those of the usual report.
  std::vector<const FigureName*> figures = {};
  /// What the trimmed mean leaves out at each end.
  WrittenNumber trim = {"0.1", 0.1L};
  /// Empty if not given.
  std::optional<QuantileType> quantile_type = {};
  /// Without a text if not given.
  WrittenNumber confidence = {};
  /// kFrequency or kReliability.
  WeightKind weight_kind = WeightKind::kFrequency;

  /// Adds the arguments to a command. This object must outlive the parsing.
  void AddTo(CLI::App& command);

  /// The given type, or the one that suits the weights.
  [[nodiscard]] QuantileType TypeOfQuantiles() const;
  [[nodiscard]] bool HasConfidence() const { return !confidence.text.empty(); }
  [[nodiscard]] bool HasReliabilities() const {
    return table.selection.weights && weight_kind == WeightKind::kReliability;
  }
  [[nodiscard]] bool HasGroups() const { return !table.selection.labels.empty(); }
  [[nodiscard]] bool HasWeights() const { return table.selection.weights.has_value(); }
  /// Whether a chosen figure is computed from that.
  [[nodiscard]] bool Needs(FigureSource source) const;
  /// Whether a chosen figure may underflow because it is, or comes from, a square.
  [[nodiscard]] bool ReportsSquares() const;
  /// Throws CLI::ValidationError for options that exclude each other.
  void RequireConsistent() const;
};

}  // namespace qorvex::apps
