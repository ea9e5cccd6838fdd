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

// Skewness and excess kurtosis of n elements, from the sum of the third or fourth powers of their
// deviations from the mean.

constexpr Extended SampleSkew(Extended n, Extended cubes, Extended std_dev) noexcept {
  return n * cubes / ((n - 1) * (n - 2) * Cube(std_dev));
}

constexpr Extended PopulationSkew(Extended n, Extended cubes, Extended std_dev) noexcept {
  return cubes / (n * Cube(std_dev));
}

constexpr Extended SampleKurtosis(Extended n, Extended fourth_powers, Extended std_dev) noexcept {
  return n * (n + 1) * fourth_powers / (FourthPower(std_dev) * (n - 1) * (n - 2) * (n - 3)) -
         3 * (n - 1) * (n - 1) / ((n - 2) * (n - 3));
}

constexpr Extended PopulationKurtosis(Extended n, Extended fourth_powers,
                                      Extended std_dev) noexcept {
  return fourth_powers / (FourthPower(std_dev) * n) - 3;
}

}  // namespace qorvex::inline QorvexStatistics::detail
