#pragma once

// What skewness and kurtosis share.

#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexStatistics::detail {

inline constexpr int kMinCountForSkew = 3;
inline constexpr int kMinCountForKurtosis = 4;

inline void RequireSpread(Extended std_dev) {
  if (FloatIsZero(std_dev)) RaiseMathError(rsStdDev);
}

// Powers as products in a fixed order.

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
