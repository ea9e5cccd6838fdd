#pragma once

/// @file
/// Figures that a report rounds to zero.

#include <cstddef>
#include <span>
#include <string>

#include "qorvex/stats/descriptive_stats.h"

namespace qorvex::apps {

/// How many figures a report hides, and how to see them.
struct HiddenFigures {
  /// The number of figures that are not zero but are printed as zero.
  std::size_t count = 0;
  /// The decimals that show four digits of the smallest of these, or 0.
  int enough_decimals = 0;

  /// "2 figures are too small for 4 decimals; --decimals 9 or --digits 4 shows all".
  [[nodiscard]] std::string Remark(int decimals, int most_decimals) const;
};

/// Figures that are shown as 0 because they are below the range of the format.
struct UnderflowedFigures {
  std::size_t count = 0;

  /// Counts a figure of 0 if the witness, which is 0 whenever the true figure is, is not 0: the
  /// standard deviation for a variance, for example.
  void Check(Extended figure, Extended witness);
  /// Checks the sum of squares, the variance and the standard deviation of a report.
  void CheckLines(std::span<const ReportFigure> lines);
  /// "2 figures are below the range of the format (shown as 0)".
  [[nodiscard]] std::string Remark() const;
};

/// Whether the figure exists and depends on the unit of the values, as skewness and kurtosis do
/// not.
[[nodiscard]] bool HasUnit(const ReportFigure& figure);

/// The figures that a report with that many decimals hides.
[[nodiscard]] HiddenFigures HiddenAmong(std::span<const Extended> figures, int decimals);

/// The error that rounding in the ordered sum of n values can cause in their mean and in deviations
/// from it.
[[nodiscard]] Extended MeanNoise(const DescriptiveResults& results, std::size_t n);

}  // namespace qorvex::apps
