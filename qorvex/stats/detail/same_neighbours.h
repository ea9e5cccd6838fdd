#pragma once

// Which of consecutive elements are the same as their predecessors, decided on integers.
//
// The difference of two elements with the same sign and exponent is that of their mantissas. If it
// exceeds the tolerance times 2^64, and 2 for roundings, SameFloat is false. If all bits are equal,
// it is true, except for NaN. Only the other pairs need SameFloat. They are rare, unless many
// elements differ by rounding errors or the tolerance is 1/4 or more.

#include <cstddef>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexStatistics::detail {

// Uses the tolerance and the instructions at the time of construction.
class SameNeighbours {
 public:
  static constexpr std::size_t kMostElements = 64;

  SameNeighbours() noexcept;

  // Bit i says whether x[i] and x[i - 1] are the same; two NaNs with equal bits count as the same.
  // For up to 64 elements that have a predecessor.
  [[nodiscard]] std::uint64_t operator()(const Extended* x, std::size_t count) const noexcept;

 private:
  bool avx2_;
  std::uint64_t reach_;  // pairs with a greater difference of mantissas are not the same
};

}  // namespace qorvex::inline QorvexStatistics::detail
