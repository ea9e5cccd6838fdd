#pragma once

// The powers of moments, as products in a fixed order.

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexStatistics::detail {

constexpr Extended Square(Extended x) noexcept {
  return x * x;
}

constexpr Extended Cube(Extended x) noexcept {
  return x * x * x;
}

constexpr Extended FourthPower(Extended x) noexcept {
  return Square(Square(x));
}

}  // namespace qorvex::inline QorvexStatistics::detail
