#pragma once

/// @file
/// Box plots in text.

#include <string>
#include <vector>

#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// A sample as a box plot shows it: J. W. Tukey, Exploratory data analysis, 1977.
struct BoxPlot {
  std::string name;
  Extended first_quartile = 0;
  Extended median = 0;
  Extended third_quartile = 0;
  Extended mean = 0;
  /// The ends of the whiskers.
  Extended lower_end = 0;
  Extended upper_end = 0;
  /// The values beyond the whiskers.
  std::vector<Extended> outliers = {};
};

/// The box plots one below the other, with a common axis, in lines of at most 80 characters; empty
/// if their range is beyond extended precision.
[[nodiscard]] std::string DrawBoxPlots(const std::vector<BoxPlot>& plots);

}  // namespace qorvex::apps
