#pragma once

/// @file
/// When an element has not changed.

#include <cmath>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// Nulls are alike; numbers are when they are equal and of one sign, zero too.
inline bool SameElement(Extended a, Extended b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  return a == b && std::signbit(a) == std::signbit(b);
}

}  // namespace qorvex::inline QorvexBaseControls::detail
