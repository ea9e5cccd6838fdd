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

  /// The smallest one that is not below the width, which is positive and finite.
  [[nodiscard]] static RoundStep AtLeast(Extended width);
  /// The number that lies this many steps from zero: what the digits of its decimal text are read
  /// as, so that 0.3 is an edge of classes of 0.1.
  [[nodiscard]] Extended Times(Extended count) const;
};

/// Where an axis has ticks, and what is written there.
struct AxisTicks {
  std::vector<double> values;
  QStringList labels;
};

/// Ticks at the round numbers from low to high, at most one more than wanted, which is two at
/// least. Labels have the decimals that tell them apart, and an exponent where numbers are very
/// large or small. No ticks unless low is below high and both are finite, nor where so many digits
/// are in common that a double does not tell ticks apart.
[[nodiscard]] AxisTicks TicksBetween(double low, double high, int most, const QLocale& locale);

}  // namespace qorvex::gallery
