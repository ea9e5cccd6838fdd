#pragma once

/// @file
/// The figures of numbers with weights.

#include <optional>
#include <span>

#include "apps/common/sample_figures.h"
#include "qorvex/stats/exact/weighted.h"

namespace qorvex::apps {

/// What is wrong with a weight.
struct WeightFault {
  Extended weight;
  /// As it follows the weight: "is negative".
  const char* what;
};

/// The fault of the first weight that the kind does not allow: weights are not negative, their sum
/// is finite, and frequencies are whole numbers whose sum is at most 2^62.
[[nodiscard]] std::optional<WeightFault> FaultOf(std::span<const Extended> weights,
                                                 WeightKind kind);

/// Numbers in ascending order with their weights, which are valid and not all 0. Numbers of weight
/// 0 are left out.
class WeightedNumbers {
 public:
  WeightedNumbers(const ColumnNumbers& numbers, std::span<const Extended> weights);

  /// The quantile; types 3 to 9 are for frequencies.
  [[nodiscard]] Extended Quantile(Extended probability, QuantileType type) const;

  /// The exact sums of the sample in which each number is repeated as often as its weight says.
  template <int kPowerSums>
  [[nodiscard]] ExactSample<kPowerSums> FrequencySums() const;
  /// The figures of that sample.
  [[nodiscard]] SampleFigures FrequencyFigures(bool population) const;

  /// The lines of a report for weights that are reliabilities: figures that depend on the ratios of
  /// the weights only.
  [[nodiscard]] std::vector<ReportFigure> ReliabilityLines(bool population) const;

  [[nodiscard]] Extended SumOfWeights() const;

 private:
  [[nodiscard]] OrderFigures Order(QuantileType type) const;

  // In units of the column, ascending.
  TQorFloatVector numbers_;
  TQorFloatVector weights_;
  // The column.
  ColumnNumbers column_;
};

}  // namespace qorvex::apps
