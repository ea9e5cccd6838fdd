#pragma once

/// @file
/// Round numbers for the ticks of an axis and the edges of classes.

#include "qorvex/base/element_types.h"

namespace qorvex::apps {

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

}  // namespace qorvex::apps
