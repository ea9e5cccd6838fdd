#pragma once

/// @file
/// The figures of a column from exact sums, or from the ordered sums of the classic routines.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "apps/common/column_numbers.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/quantiles.h"

namespace qorvex::apps {

/// Figures as for a report.
struct SampleFigures {
  std::uint64_t count = 0;
  DescriptiveResults results = {};
  /// The maximum minus the minimum.
  Extended range = 0;
  /// Whether skewness and kurtosis exist, if there are enough values.
  bool has_spread = false;

  /// The lines of a report.
  [[nodiscard]] std::vector<ReportFigure> Lines(bool population) const;
};

/// The figures that depend on the order of the numbers only, in units of the column.
struct OrderFigures {
  Extended minimum = 0;
  Extended maximum = 0;
  Extended first_quartile = 0;
  Extended median = 0;
  Extended third_quartile = 0;
  /// The number that occurs more often than every other.
  std::optional<Extended> mode = std::nullopt;
};

/// Throws InputError (kOutOfRange), with the names of the input and the column, if a figure is not
/// finite: further figures computed from it would mean nothing.
void RequireFinite(const std::vector<ReportFigure>& lines, const std::string& input,
                   const std::string& column);

/// The exact sums of the numbers. As many threads share the work as it is worth, at most the given
/// number; the result is the same.
template <int kPowerSums>
[[nodiscard]] ExactSample<kPowerSums> ExactSumsOf(const ColumnNumbers& numbers,
                                                  unsigned threads = 1);

/// The quantile of numbers in ascending order, computed from integers before they are rounded.
[[nodiscard]] Extended QuantileOf(const ColumnNumbers& sorted, Extended probability,
                                  QuantileType type);

/// Those of numbers in ascending order, of which there is at least one.
[[nodiscard]] OrderFigures OrderFiguresOf(const ColumnNumbers& sorted);

/// The minimum and the maximum only, of numbers in any order, of which there is at least one.
[[nodiscard]] OrderFigures ExtremesOf(const ColumnNumbers& numbers);

/// All figures; skewness and kurtosis need four sums of powers, and are 0 without. The numbers tell
/// the unit of the column.
template <int kPowerSums>
[[nodiscard]] SampleFigures ExactFigures(const ExactSample<kPowerSums>& sums,
                                         const OrderFigures& order, const ColumnNumbers& numbers,
                                         bool population);

/// The figures of DescriptiveStats. If the unit of the values is so small that it takes their
/// standard deviation for zero, skewness and kurtosis are those of the values times a power of two.
[[nodiscard]] SampleFigures ClassicFigures(TQorFloatVector values, bool population);

}  // namespace qorvex::apps
