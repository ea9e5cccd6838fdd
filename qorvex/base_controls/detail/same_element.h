#pragma once

/// @file
/// Whether an element has changed.

#include <cmath>

#include "qorvex/base/element_types.h"
#include "qorvex/base_controls/detail/text_elements.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// Nulls are the same, and so are elements that stand for the same text; numbers are the same if
/// they are equal and have the same sign, zeros included.
inline bool SameElement(Extended a, Extended b) {
  if (std::isnan(a) || std::isnan(b)) {
    return std::isnan(a) && std::isnan(b) && NumberCarriedBy(a) == NumberCarriedBy(b);
  }
  return a == b && std::signbit(a) == std::signbit(b);
}

}  // namespace qorvex::inline QorvexBaseControls::detail
