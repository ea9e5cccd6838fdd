#pragma once

/// @file
/// What sums know about infinities and NaN.

#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/base/element_types.h"

namespace qorvex::exact {

/// How many NaNs and infinities have been added. Counts, so that they can be removed again.
struct SpecialCounts {
  /// NaNs of either sign.
  std::int64_t nan = 0;
  /// Positive infinities.
  std::int64_t positive_infinity = 0;
  /// Negative infinities.
  std::int64_t negative_infinity = 0;

  /// Counts a value that is not finite.
  void Add(Extended value) {
    ++(std::isnan(value) ? nan : value > 0 ? positive_infinity : negative_infinity);
  }
  /// @{
  /// Adds or subtracts every count.
  SpecialCounts& operator+=(const SpecialCounts& other) {
    nan += other.nan;
    positive_infinity += other.positive_infinity;
    negative_infinity += other.negative_infinity;
    return *this;
  }
  SpecialCounts& operator-=(const SpecialCounts& other) {
    nan -= other.nan;
    positive_infinity -= other.positive_infinity;
    negative_infinity -= other.negative_infinity;
    return *this;
  }
  /// @}
  /// Whether no kind is counted more often in the other.
  [[nodiscard]] bool Contains(const SpecialCounts& other) const {
    return other.nan <= nan && other.positive_infinity <= positive_infinity &&
           other.negative_infinity <= negative_infinity;
  }
  /// Whether any is counted.
  [[nodiscard]] bool Any() const { return *this != SpecialCounts(); }
  /// The number of all.
  [[nodiscard]] std::int64_t Total() const { return nan + positive_infinity + negative_infinity; }
  /// Their sum, if there is any: an infinity, or NaN if they differ.
  [[nodiscard]] Extended Sum() const {
    constexpr Extended kInfinity = std::numeric_limits<Extended>::infinity();
    if (nan != 0 || (positive_infinity != 0 && negative_infinity != 0)) {
      return std::numeric_limits<Extended>::quiet_NaN();
    }
    return positive_infinity != 0 ? kInfinity : -kInfinity;
  }

  /// Equal counts.
  friend bool operator==(const SpecialCounts&, const SpecialCounts&) = default;
};

}  // namespace qorvex::exact
