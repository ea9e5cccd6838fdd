#pragma once

/// @file
/// Round numbers for the ticks of an axis and the edges of classes.

#include <QLocale>
#include <QStringList>
#include <vector>

#include "qorvex/base/element_types.h"

namespace qorvex::gallery {

/// A distance of 1, 2 or 5 times a power of ten.
struct RoundStep {
  int digit = 1;
  int exponent = 0;

  /// The smallest step of at least the width, which must be positive and finite.
  [[nodiscard]] static RoundStep AtLeast(Extended width);
  /// The number that is this many steps from zero, exactly as its decimal text is read, so that 0.3
  /// is an edge of classes of width 0.1.
  [[nodiscard]] Extended Times(Extended count) const;
};

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
