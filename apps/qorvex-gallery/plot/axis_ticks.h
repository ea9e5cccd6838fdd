#pragma once

/// @file
/// The ticks of an axis.

#include <QLocale>
#include <QStringList>
#include <vector>

#include "apps/common/round_step.h"

namespace qorvex::gallery {

using apps::RoundStep;

/// The ticks of an axis and their labels.
struct AxisTicks {
  std::vector<double> values;
  QStringList labels;
};

/// Ticks at the round numbers from low to high: at most one more than `most`, which is at least
/// two. Labels have as many decimals as they need to be different, and an exponent for very large
/// or small numbers. There are no ticks unless low < high and both are finite, nor if doubles
/// cannot represent the differences between ticks.
[[nodiscard]] AxisTicks TicksBetween(double low, double high, int most, const QLocale& locale);

}  // namespace qorvex::gallery
