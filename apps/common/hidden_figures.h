#pragma once

/// @file
/// Figures of a report that its decimals leave no digit of.

#include <cstddef>

#include "qorvex/stats/descriptive_stats.h"

namespace qorvex::apps {

struct HiddenFigures {
  /// How many figures are not zero and show zeros only.
  std::size_t count = 0;
  /// The decimals that show four digits of the smallest of them; 0 without any.
  int enough_decimals = 0;
};

/// What a report with that many decimals hides of a sample of n values. Skewness and kurtosis do
/// not count, since they have no unit that could be too large; nor does what rounding can leave of
/// a sum, mean, variance or standard deviation that is 0.
[[nodiscard]] HiddenFigures HiddenBy(const DescriptiveResults& results, std::size_t n,
                                     int decimals);

}  // namespace qorvex::apps
